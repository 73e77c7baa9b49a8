#include "formats/pbn/pbn_writer.h"

#include <algorithm>
#include <array>

#include "core/host.h"
#include "core/text.h"
#include "core/version.h"

namespace tricklet {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

void AppendTag(std::string& text, std::string_view name, std::string_view value) {
  text += '[';
  text += name;
  text += " \"";
  for (const char c : value) {
    if (c == '"' || c == '\\') text += '\\';
    text += c;
  }
  text += "\"]";
  text += kLineEnd;
}

std::string DealText(const HandTable& hands) {
  std::string text = "N:";
  int cardCount = 0;
  for (const Seat seat : kAllSeats) {
    if (seat != Seat::North) text += ' ';
    for (const Suit suit : kAllSuits) {
      if (suit != Suit::Spades) text += '.';
      text += PBNFormat(hands[seat][suit], cardCount);
    }
  }
  return text;
}

std::string PbnCall(const CallList& calls, int index) {
  const Call call = calls[index];
  if (call.IsDouble()) return "X";
  if (call.IsRedouble()) return "XX";
  return Utf8ToLatin1(calls.TextAt(index));
}

/// Four calls to a line.
void AppendAuction(std::string& text, const Board& board) {
  AppendTag(text, "Auction", SeatName[board.Dealer()].substr(0, 1));
  for (int i = 0; i < board.NumCalls(); ++i) {
    text += PbnCall(board.calls, i);
    text += ' ';
    if (i % kSeats == kSeats - 1 || i == board.NumCalls() - 1) text += kLineEnd;
  }
}

void AppendTable(std::string& text, const MakeableTable& table) {
  constexpr EnumArray<TableSeat, char, kSeats> kDeclarer{{'N', 'S', 'E', 'W'}};
  constexpr EnumArray<TableStrain, std::string_view, kStrains> kDenomination{
      {"  C ", "  D ", "  H ", "  S ", " NT "}};
  AppendTag(text, "OptimumResultTable", "Declarer;Denomination;Result");
  for (const TableSeat declarer : kAllTableSeats) {
    for (const TableStrain strain : kAllTableStrains) {
      text += kDeclarer[declarer];
      text += kDenomination[strain];
      text += std::to_string(table[declarer][strain]);
      text += kLineEnd;
    }
  }
}

/// Suit symbols as PBN has them in comments: "\S".
std::string CommentText(std::string_view line) {
  std::string text;
  while (!line.empty()) {
    const auto suit = std::find_if(kAllSuits.begin(), kAllSuits.end(), [line](Suit each) {
      return line.starts_with(SuitSymbol[each]);
    });
    if (suit != kAllSuits.end()) {
      text += "\\" + std::string(StrainLetter[ToStrain(*suit)]);
      line.remove_prefix(SuitSymbol[*suit].size());
    } else {
      text += line.front() == '{' ? '(' : line.front() == '}' ? ')' : line.front();
      line.remove_prefix(1);
    }
  }
  return Utf8ToLatin1(text);
}

void AppendNotes(std::string& text, std::string_view notes) {
  text += '{';
  for (std::string_view rest = notes; !rest.empty();) {
    const bool first = text.back() == '{';
    const std::string line = CommentText(TakeLine(rest));
    // A tag is known by its bracket even where blanks stand before it.
    if (!first) text += Trim(line).starts_with('[') ? " " : kLineEnd;
    if (!first && line.starts_with('%')) text += ' ';
    text += line;
  }
  text += '}';
  text += kLineEnd;
}

}  // namespace

std::string PbnRecord(const Board& board, std::string_view libraryName, PbnOptions options) {
  std::string text;
  AppendTag(text, "Description",
            std::string(kProgramName) + " " + std::to_string(kVersionMajor) + "." +
                std::to_string(kVersionMinor) + " - " + Utf8ToLatin1(libraryName));
  AppendTag(text, "Board", std::to_string(board.boardNumber));
  AppendTag(text, "Dealer", SeatName[board.Dealer()].substr(0, 1));
  AppendTag(text, "Vulnerable", PBNVul[board.Vulnerability()]);
  AppendTag(text, "Deal", DealText(board.hands));
  if (options.bids && board.NumCalls() > 0) AppendAuction(text, board);
  if (board.makeableValid) AppendTable(text, board.makeable);
  if (options.shark) {
    AppendTag(text, "Result", "0");
    text += "{\r\nBoard " + std::to_string(board.boardNumber) + "\r\n}\r\n";
  }
  if (!options.notes.empty()) AppendNotes(text, options.notes);
  return text;
}

}  // namespace tricklet
