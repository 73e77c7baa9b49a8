#include "publish/diagram.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "core/columns.h"
#include "publish/sheet_text.h"

namespace tricklet {
namespace {

constexpr std::size_t kHandWidth = 14;    // at least: a holding of ten cards
constexpr std::size_t kCentreWidth = 12;  // at least: between West and East

const std::string kDash = "\u2014";

/// "4♠x by South": the contract with the symbol of its strain.
std::string ContractText(const Board& board) {
  return ContractSymbols(board.contract) + ContractLabel(board).substr(board.contract.size());
}

std::string PlayText(const SeenPlay& play) {
  std::string text = "NS: " + std::to_string(play.tricks[Side::NorthSouth]) +
                     " \u00b7 EW: " + std::to_string(play.tricks[Side::EastWest]);
  if (play.onPlay) text += " \u00b7 " + std::string(SeatName[*play.onPlay]) + " to play";
  return text;
}

using Lines = std::vector<std::string>;

/// Seat, and player where known; then the suits, which are blank where no card is seen.
Lines HandLines(const SeenBoard& seen, Seat seat) {
  std::string title(SeatName[seat]);
  if (!seen.names[seat].empty()) title += " \u00b7 " + seen.names[seat];
  Lines lines{std::move(title)};
  for (const Suit suit : kAllSuits) {
    lines.push_back(HandSeen(seen, seat) ? std::string(SuitSymbol[suit]) + " " +
                                               DiagramRanks(seen.board.hands[seat][suit])
                                         : std::string());
  }
  return lines;
}

std::string CardLine(const SeenBoard& seen, Seat seat) {
  const auto card = CardOnTable(seen, seat);
  return card ? CardText(*card) : std::string();
}

/// The lines between West and East: a blank one beside their names, then the trick on the table.
Lines CentreLines(const SeenBoard& seen) {
  const auto card = [&](Seat seat) { return CardLine(seen, seat); };
  return {"", PadRight("", 4) + card(Seat::North),
          PadRight(card(Seat::West), kCentreWidth - 4) + card(Seat::East),
          PadRight("", 4) + card(Seat::South), ""};
}

std::size_t WidthOf(const Lines& lines, std::size_t least) {
  for (const std::string& line : lines) least = std::max(least, CharacterCount(line) + 2);
  return least;
}

/// North or South: nobody stands beside the suits.
std::string HandAlone(const SeenBoard& seen, Seat seat, std::size_t left) {
  std::string text;
  for (const std::string& line : HandLines(seen, seat)) {
    if (!line.empty()) AppendLine(text, std::string(left, ' ') + line);
  }
  return text;
}

std::string HandsText(const SeenBoard& seen) {
  const Lines west = HandLines(seen, Seat::West);
  const Lines east = HandLines(seen, Seat::East);
  const Lines centre = CentreLines(seen);
  const std::size_t left = WidthOf(west, kHandWidth);
  std::string text = HandAlone(seen, Seat::North, left);
  for (std::size_t i = 0; i < west.size(); ++i) {
    AppendLine(text, PadRight(west[i], left) + PadRight(centre[i], kCentreWidth) + east[i]);
  }
  return text + HandAlone(seen, Seat::South, left);
}

}  // namespace

std::string DiagramRanks(Holding holding) {
  std::string ranks;
  for (const std::string_view rank : RanksOf(holding)) ranks += rank;
  return ranks.empty() ? kDash : ranks;
}

bool HandSeen(const SeenBoard& seen, Seat seat) {
  return !seen.hidden[seat] && HasCards(seen.board.hands[seat]);
}

std::optional<Card> CardOnTable(const SeenBoard& seen, Seat seat) {
  return seen.play ? seen.play->trick[seat] : std::nullopt;
}

std::vector<std::string> DiagramHeading(const SeenBoard& seen) {
  const Board& board = seen.board;
  if (!IsStorable(board.boardNumber)) return {};
  return {"Board " + std::to_string(board.boardNumber),
          "Dealer " + std::string(SeatName[board.Dealer()]),
          std::string(VulText[board.Vulnerability()])};
}

std::vector<CallRow> DiagramCalls(const SeenBoard& seen) {
  return seen.auction ? CallRows(seen.board) : std::vector<CallRow>();
}

std::vector<std::string> DiagramFoot(const SeenBoard& seen) {
  std::vector<std::string> lines;
  if (!seen.board.contract.empty()) lines.push_back(ContractText(seen.board));
  if (seen.play) {
    lines.push_back(PlayText(*seen.play));
    if (!seen.play->result.empty()) lines.push_back(seen.play->result);
  }
  return lines;
}

std::string DiagramText(const SeenBoard& seen) {
  std::string text;
  std::string heading;
  for (const std::string& part : DiagramHeading(seen)) {
    heading += (heading.empty() ? "" : " \u00b7 ") + part;
  }
  if (!heading.empty()) text += heading + "\n\n";
  text += HandsText(seen);
  if (const std::string calls = CallRowsText(DiagramCalls(seen)); !calls.empty()) {
    text += "\n" + calls;
  }
  const auto foot = DiagramFoot(seen);
  if (!foot.empty()) text += "\n";
  for (const std::string& line : foot) text += line + "\n";
  return text;
}

}  // namespace tricklet
