#include "formats/results/table_record.h"

#include <algorithm>
#include <array>

#include "formats/lin/lin_text.h"
#include "formats/lin/lin_writer.h"
#include "formats/results/lin_boards.h"

namespace tricklet {
namespace {

/// The order in which LIN has the four seats.
constexpr std::array kLinOrder{Seat::South, Seat::West, Seat::North, Seat::East};

/// `text` without what would end its field or its line.
std::string FieldText(std::string_view text) {
  std::string field(text);
  std::replace_if(
      field.begin(), field.end(), [](char c) { return c == '|' || c == '\r' || c == '\n'; }, ' ');
  return field;
}

std::string PlayersText(const PerSeat<std::string>& players) {
  std::string text;
  for (const Seat seat : kLinOrder) {
    std::string name = FieldText(players[seat]);
    std::replace(name.begin(), name.end(), ',', ' ');
    text += name + (seat == kLinOrder.back() ? "" : ",");
  }
  return text;
}

std::string DealText(const TableRecord& table) {
  std::string text(1, LinDealer(table.dealer.value_or(DealerOfBoard(table.boardNumber))));
  for (const Seat seat : kLinOrder) {
    text += LinHand(table.hands[seat]) + (seat == kLinOrder.back() ? "" : ",");
  }
  return text;
}

std::string CallText(Call call) {
  if (call.IsPass()) return "p";
  if (call.IsDouble()) return "d";
  if (call.IsRedouble()) return "r";
  return call.Text().substr(0, 2);  // "1N"
}

void AppendAuction(const TableRecord& table, std::string& line) {
  for (const ExplainedCall& each : table.auction) {
    if (each.call.IsUnread()) continue;
    line += "mb|" + CallText(each.call) + "|";
    if (!each.meaning.empty()) line += "an|" + FieldText(each.meaning) + "|";
  }
}

void AppendPlay(const TableRecord& table, std::string& line) {
  for (const Card card : table.play) {
    line += "pc|";
    line += StrainLetter[ToStrain(card.suit)];
    line += RankText[card.rank] == "10" ? "T" : RankText[card.rank];
    line += "|";
  }
}

std::string NumberOr0(const std::string& number) {
  return number.empty() ? "0" : FieldText(number);
}

}  // namespace

std::string LinLineOf(const TableRecord& table) {
  const std::string number = std::to_string(table.boardNumber);
  // The header comes before the names, of which one may be "Board 7".
  std::string line = std::string("qx|") + (table.closedRoom ? "c" : "o") + number +
                     "|rh||ah|Board " + number + "|pn|" + PlayersText(table.players) + "|";
  if (HasCards(table.hands)) line += "md|" + DealText(table) + "|";
  line += "sv|";
  line += LinVulnerability(table.vulnerability.value_or(VulOfBoard(table.boardNumber)));
  line += "|";
  AppendAuction(table, line);
  AppendPlay(table, line);
  // The bars between values and tags are doubled from the second value on: programs that read
  // "LIN.txt" expect them so.
  line += "pg||qent|" + FieldText(table.tricks) + "|qens|" + FieldText(table.score);
  line += "||qenns|" + NumberOr0(table.nsMatchPoints) + "||qenew|" + NumberOr0(table.ewMatchPoints);
  line += "||qenc|" + FieldText(table.contract) + "||qend|" + FieldText(table.declarer);
  line += "||qenl|" + FieldText(table.lead) + "||qeni|" + NumberOr0(table.imps) + "|";
  return line;
}

std::string RenumberedLin(std::string_view line, int boardNumber) {
  constexpr std::string_view kRoom = "qx|";
  constexpr std::string_view kHeader = "ah|Board ";
  const std::string number = std::to_string(boardNumber);
  std::string text(line);
  const auto putNumber = [&](std::size_t at) {
    const auto end = std::min(text.find_first_not_of("0123456789", at), text.size());
    text.replace(at, end - at, number);
  };
  if (text.starts_with(kRoom)) {
    std::size_t at = kRoom.size();
    if (at < text.size() && (text[at] == 'o' || text[at] == 'c')) ++at;
    putNumber(at);
  }
  const auto header = text.find(kHeader);
  if (header != std::string::npos) putNumber(header + kHeader.size());
  // A name may read as a header.
  return BoardNumberOfLin(text) == boardNumber ? text : "rh||ah|Board " + number + "|" + text;
}

}  // namespace tricklet
