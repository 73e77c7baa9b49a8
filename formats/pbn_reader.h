// Reading Portable Bridge Notation: of each game the tags Board, Deal, Auction, OptimumResultTable
// and DoubleDummyTricks.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/board.h"

namespace tricklet {

/// Where the boards of a hand-record file go, one at a time.
class BoardSink {
 public:
  BoardSink() = default;
  BoardSink(const BoardSink&) = delete;
  BoardSink& operator=(const BoardSink&) = delete;
  virtual ~BoardSink() = default;

  /// Takes a board whose number is 1..999. What it throws ends the reading.
  virtual void Store(const Board& board) = 0;
  /// The board of this number begins; `done` of `total` thousandths of the file are read. False
  /// ends the reading: it was cancelled.
  virtual bool Begin(int boardNumber, int done, int total) = 0;
};

/// What a reader found.
struct ReadResult {
  int boardsSaved = 0;
  int firstBoard = 0;  ///< as read, 0 when none was; not always a number that can be stored
  int lastBoard = 0;   ///< the highest as read
  bool cancelled = false;
  std::optional<std::string> badLine;  ///< the line that could not be read and ended the reading
};

/// Reads all games of `text`. The line end is chosen once for the whole file: CR LF if it holds one
/// anywhere, else CR, else LF; a text without any of them holds no boards. The first line is the
/// file's header and is not examined. A board is stored when the next one begins, or at the end.
/// The hands stay as they were when a game gives none; calls and table are each game's own.
/// Throws `Fault` for an auction of more than 100 calls, and what `sink` throws.
ReadResult ReadPBN(std::string_view text, BoardSink& sink);

}  // namespace tricklet
