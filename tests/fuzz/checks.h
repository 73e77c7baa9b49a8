// What must hold of every board that a reader hands over, whatever it has read.
#pragma once

#include <cstdlib>

#include "formats/pbn/pbn_writer.h"
#include "formats/sink/board_sink.h"
#include "formats/sink/record_text.h"
#include "library/board_file.h"

namespace tricklet::fuzz {

inline bool HasCardTwice(const HandTable& hands) {
  for (const Suit suit : kAllSuits) {
    Holding seen;
    for (const Seat seat : kAllSeats) {
      const Holding held = hands[seat][suit];
      if ((seen | held).Count() < seen.Count() + held.Count()) return true;
      seen = seen | held;
    }
  }
  return false;
}

/// The board can be stored, and its file gives it back; but a card that is in two hands stays in
/// one of them. It can be written as PBN.
inline void CheckBoard(const Board& board) {
  if (!IsStorable(board.boardNumber)) std::abort();
  Board read;
  read.boardNumber = board.boardNumber;
  if (!ReadBoardText(WriteBoardText(board), read, TableReading::Always)) std::abort();
  if (!(read.hands == board.hands) && !HasCardTwice(board.hands)) std::abort();
  if (!(read.calls == board.calls) || read.contract != board.contract) std::abort();
  if (PbnRecord(board, "Library", {}).empty()) std::abort();
}

/// Takes boards and checks them.
class CheckingSink : public BoardSink {
 public:
  void Store(const Board& board) override { CheckBoard(board); }
  bool Begin(int /*boardNumber*/, int done) override {
    if (done < 0 || done > kWholeText) std::abort();
    return true;
  }
};

}  // namespace tricklet::fuzz
