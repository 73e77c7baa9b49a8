// Where a reader of hand records puts the boards, and what it tells of its run.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

/// How far a reader of `text` is when `rest` of it is left, for `BoardSink::Begin`.
inline constexpr int kWholeText = 1000;
int ThousandthsRead(std::string_view text, std::string_view rest);

/// What a reader found.
struct ReadResult {
  int boardsSaved = 0;
  int firstBoard = 0;  ///< as read, 0 when none was; not always a number that can be stored
  int lastBoard = 0;   ///< the highest as read
  bool cancelled = false;
  bool failed = false;                 ///< a message has said why the reading ended
  std::optional<std::string> badLine;  ///< the line that could not be read and ended the reading
  /// The number of each deal that is not stored, as another of that number came before it.
  std::vector<int> repeatedBoards;
  /// The boards stored without their auction, as the dealer in the record is not the board's.
  std::vector<int> foreignAuctions;
};

}  // namespace tricklet
