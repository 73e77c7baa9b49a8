#include "library/board_summary.h"

#include "library/board_file.h"

namespace tricklet {

BoardSummary SummaryOf(const Board& board) {
  return {.readable = true,
          .dealt = HasCards(board.hands),
          .calls = board.calls,
          .contract = board.contract,
          .declarer = board.declarer,
          .trumps = board.trumps,
          .contractLevel = board.contractLevel};
}

BoardSummary ReadBoardSummary(std::string_view text, int boardNumber) {
  Board board;
  board.boardNumber = boardNumber;
  if (!ReadBoardText(text, board, TableReading::OnlyWhenComplete)) return {};
  return SummaryOf(board);
}

}  // namespace tricklet
