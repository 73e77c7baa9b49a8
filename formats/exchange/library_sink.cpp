#include "formats/exchange/library_sink.h"

#include <string>

#include "disk/presence.h"
#include "formats/results/lin_file.h"
#include "formats/sink/record_text.h"
#include "library/board_store.h"

namespace tricklet {

void LibrarySink::Store(const Board& board) {
  session_.board = board;
  try {
    StoreBoard(session_, write_);
  } catch (const std::exception& failure) {
    failure_ = FaultFrom(failure);
    unstored_ = board.boardNumber;
    readOnly_ = IsReadOnly(session_.BoardPath(board.boardNumber));
    throw;
  }
  ++count_;
  stored_.insert(board.boardNumber);
  if (firstStored_ != 0) return;
  firstStored_ = board.boardNumber;
  // The import goes on even if this fails.
  try {
    resultsStayed_ = recyclesResults_ && !RecycleLinData(session_);
  } catch (const Fault&) {
    resultsStayed_ = true;
  }
}

bool LibrarySink::Begin(int boardNumber, int done) {
  return session_.host.Step("Importing board " + std::to_string(boardNumber), done, kWholeText);
}

}  // namespace tricklet
