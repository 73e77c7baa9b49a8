// Any bytes as a board file: what is read must be writable, and must come back as it was.
#include "tests/fuzz/checks.h"

void tricklet::fuzz::Check(std::string_view bytes) {
  Board basic;
  ReadBoardText(bytes, basic, TableReading::OnlyWhenComplete);
  Board board;
  const bool readable = ReadBoardText(bytes, board, TableReading::Always);
  Board again;
  // Even a board read in part is a board.
  Require(ReadBoardText(WriteBoardText(board), again, TableReading::Always));
  Require(again.hands == board.hands && again.calls == board.calls);
  Require(!readable || again.makeableValid == board.makeableValid);
}
