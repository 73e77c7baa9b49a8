// Where a reader of hand records puts the boards, and what it tells of its run.
#pragma once

#include <optional>
#include <string>
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

  /// Takes a board whose number is 1..999. What it throws ends the reading: no reader catches it.
  virtual void Store(const Board& board) = 0;
  /// Announces a board, whose number may be any; `done` thousandths of the file have been read.
  /// False when the person has cancelled the reading, which then ends.
  virtual bool Begin(int boardNumber, int done) = 0;
};

/// What a reader left out of a file and went on without. Board numbers in the order of the file,
/// each as often as it was left out.
struct LeftOut {
  std::vector<int> repeated;    ///< deals whose number an earlier, different deal has
  std::vector<int> impossible;  ///< deals with no card, a card twice or over 13 cards in a hand
  std::vector<int> broken;      ///< LIN records with a broken percent escape
  std::vector<int> unstorable;  ///< boards whose number is not 1..999
  std::vector<int> foreign;     ///< auctions of a dealer who is not the board's
  std::vector<int> overlong;    ///< auctions of more than 100 calls

  /// A part of the file could not be read. What is left out for other reasons could be read, but
  /// has no place in a library.
  bool Unreadable() const { return !impossible.empty() || !broken.empty() || !overlong.empty(); }
};

/// What a reader found.
struct ReadResult {
  int boardsSaved = 0;  ///< as the message at the end counts them
  int firstBoard = 0;   ///< as read, 0 when none was; not always a number that can be stored
  int lastBoard = 0;    ///< the highest as read
  bool cancelled = false;
  /// Why the file, or a part of it, was not read: for the user, before the count.
  std::vector<std::string> messages;
  std::optional<std::string> badLine;  ///< the line that could not be read and ended the reading
  int badLineNumber = 0;               ///< of `badLine`, the first line of the file being 1
  std::string badLineReason;  ///< what is wrong where `badLine` does not show it, else empty
  LeftOut leftOut;
};

}  // namespace tricklet
