#include "formats/lin_cards.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "core/text.h"
#include "formats/lin_record.h"

namespace tricklet {

int BoardNumberOfLin(std::string_view record) {
  constexpr std::string_view kBoard = "|Board ";
  const auto at = record.find(kBoard);
  if (at == std::string_view::npos) return ParseLinRecord(record).boardNumber;
  return std::max(LeadingNumber(record.substr(at + kBoard.size())), 0);
}

std::vector<Board> BoardsOfLinData(const LinFile& data, int firstBoard, int lastBoard) {
  std::array<std::optional<LinRecord>, kLastBoardNumber + 1> found;
  for (const std::string& text : data.Lin) {
    const int number = BoardNumberOfLin(text);
    if (!IsStorable(number) || number < firstBoard || number > lastBoard) continue;
    auto& kept = found.at(static_cast<std::size_t>(number));
    if (kept) continue;
    LinRecord record = ParseLinRecord(text);
    record.boardNumber = number;
    if (record.hasDeal) kept = std::move(record);
  }
  std::vector<Board> boards;
  bool auctions = false;
  for (auto& record : found) {
    if (!record) continue;
    if (boards.empty()) auctions = record->hasAuction;
    if (!auctions) record->calls.clear();
    boards.push_back(BoardOfLinRecord(*record));
  }
  return boards;
}

void ReadLinCards(const LinFile& data, int firstBoard, int lastBoard, BoardSink& sink,
                  ReadResult& result) {
  const std::vector<Board> boards = BoardsOfLinData(data, firstBoard, lastBoard);
  const int total = static_cast<int>(boards.size());
  for (const Board& board : boards) {
    if (!sink.Begin(board.BoardNumber, result.boardsSaved * kWholeText / total, kWholeText)) {
      result.cancelled = true;
      return;
    }
    sink.Store(board);
    if (++result.boardsSaved == 1) result.firstBoard = board.BoardNumber;
    result.lastBoard = board.BoardNumber;
  }
}

}  // namespace tricklet
