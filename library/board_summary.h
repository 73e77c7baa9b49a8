// What a list of boards tells of each board.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/board.h"

namespace tricklet {

/// What one board's file, or the board itself, tells at a glance.
struct BoardSummary {
  bool readable = false;           ///< the file holds a board; nothing else counts if not
  bool dealt = false;              ///< some hand has a card
  CallList calls{};                ///< the auction
  std::string contract{};          ///< "4Sx", "All Pass"; empty where there is none
  Seat declarer = Seat::North;     ///< of a contract
  Strain trumps = Strain::Spades;  ///< of a contract
  int contractLevel = 0;           ///< 1..7; 0 where there is no contract
  friend bool operator==(const BoardSummary&, const BoardSummary&) = default;
};

BoardSummary SummaryOf(const Board& board);

/// The summary of the text of a board file; `boardNumber` 1..999 says who deals. Of a text that is
/// no whole board it is not `readable`.
BoardSummary ReadBoardSummary(std::string_view text, int boardNumber);

/// One row of a list of boards.
struct ListedBoard {
  int boardNumber = kFirstBoardNumber;  ///< 1..999
  bool stored = false;                  ///< the library has a file of it
  bool changed = false;                 ///< it has changes that are not saved
  std::optional<BoardSummary>
      summary{};               ///< nothing without a file, or as long as that is not read
  std::optional<int> score{};  ///< from North-South's point of view
  std::string ruling{};        ///< what stands in the place of a score: "A5050"

  /// Nothing is known of a deal.
  bool Empty() const { return summary ? summary->readable && !summary->dealt : !stored; }
  bool HasResult() const { return score || !ruling.empty(); }
};

}  // namespace tricklet
