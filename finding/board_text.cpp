#include "finding/board_text.h"

#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "library/board_file.h"

namespace tricklet {

bool BoardText::LosesAuction(int number) const {
  return board.Dealer() != DealerOfBoard(number) && board.NumCalls() > 0;
}

std::string BoardText::ForNumber(int number) const {
  if (!LosesAuction(number)) return text;
  Board silent = board;
  silent.calls = {};
  return WriteBoardText(silent);
}

BoardText ReadBoardFile(const std::filesystem::path& file, int number) {
  BoardText read;
  read.text = ReadWholeFile(file, kMaxBoardFileBytes);
  read.board.boardNumber = number;
  if (!ReadBoardText(read.text, read.board, TableReading::Always)) {
    throw Fault(FaultNumber::PathFileAccess, ShownPath(file) + " is no board");
  }
  return read;
}

}  // namespace tricklet
