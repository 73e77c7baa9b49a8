// One table's play of a board, from formats that do not hold LIN records, as a line of "LIN.txt".
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/board.h"

namespace tricklet {

/// A call, and what it means where the file explains it.
struct ExplainedCall {
  Call call;
  std::string meaning;  ///< UTF-8; empty where there is none
};

/// What is known of the table. Empty fields and lists are those that are not known. All text is
/// UTF-8.
struct TableRecord {
  int boardNumber = 0;
  bool closedRoom = false;
  PerSeat<std::string> players;
  HandTable hands;
  std::optional<Seat> dealer;
  std::optional<tricklet::Vulnerability> vulnerability;
  std::vector<ExplainedCall> auction;  ///< the dealer's call first
  std::vector<Card> play;              ///< in the order in which the cards were played
  // The scorer's own words and numbers, as "LIN.txt" has them.
  std::string tricks;         ///< of the declarer, 0..13
  std::string score;          ///< from North-South's point of view, or a ruling: "A6040"
  std::string nsMatchPoints;  ///< a decimal number
  std::string ewMatchPoints;
  std::string contract;  ///< "4Sx", "PASS"
  std::string declarer;  ///< "N", "E", "S", "W"
  std::string lead;      ///< suit and rank: "SK"
  std::string imps;      ///< of North-South, a decimal number
};

/// The line, ready for `LinFile::lin`: the record, then the scorer's tags. Bars, line ends and, in
/// names, commas become blanks.
std::string LinLineOf(const TableRecord& table);

/// The line under another board number, in its room and in its header. A line that names no board
/// is given one.
std::string RenumberedLin(std::string_view line, int boardNumber);

}  // namespace tricklet
