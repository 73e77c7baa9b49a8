// The current library as the place where the boards of a hand-record file go.
#pragma once

#include <exception>
#include <optional>
#include <set>
#include <utility>

#include "core/fault.h"
#include "formats/sink/board_sink.h"
#include "library/library_write.h"
#include "library/session.h"

namespace tricklet {

/// Stores each board and shows how far the reading has come.
class LibrarySink : public BoardSink {
 public:
  /// `recyclesResults`: "LIN.txt" goes to the recycle bin when the first board is stored, as its
  /// results belong to the boards that are replaced.
  LibrarySink(Session& session, LibraryWrite write, bool recyclesResults)
      : session_(session), write_(std::move(write)), recyclesResults_(recyclesResults) {}

  /// Throws `Fault` when the board cannot be written, and remembers it.
  void Store(const Board& board) override;
  bool Begin(int boardNumber, int done) override;

  /// The numbers of the boards stored, and the one that was stored first (0: none was).
  const std::set<int>& Stored() const { return stored_; }
  int FirstStored() const { return firstStored_; }
  /// The number of the board that could not be stored; 0: there is none.
  int Unstored() const { return unstored_; }
  /// Boards stored; one that replaced another of the same run counts as well.
  int Count() const { return count_; }

  /// For what is stored beside the boards.
  LibraryWrite& Write() { return write_; }
  /// "LIN.txt" was to be recycled and could not be.
  bool ResultsStayed() const { return resultsStayed_; }

  /// What has ended the storing, if anything has.
  const std::optional<Fault>& Failure() const { return failure_; }
  /// What ended it was a board file that is marked read-only.
  bool FailedAtReadOnly() const { return readOnly_; }

 private:
  Session& session_;
  LibraryWrite write_;
  const bool recyclesResults_;
  std::set<int> stored_;
  int firstStored_ = 0;
  int unstored_ = 0;
  int count_ = 0;
  std::optional<Fault> failure_;
  bool readOnly_ = false;
  bool resultsStayed_ = false;
};

}  // namespace tricklet
