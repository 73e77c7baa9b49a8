#include "formats/lin_cards.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "core/fault.h"
#include "core/text.h"
#include "formats/lin_record.h"

namespace tricklet {

namespace {

/// Of each board of the range the first record with a deal that can be right, else one that has a
/// deal at all.
std::map<int, LinRecord> RecordsOf(const LinFile& data, int firstBoard, int lastBoard) {
  std::map<int, LinRecord> records;
  std::set<int> complete;  // boards that need no other record
  for (const std::string& text : data.Lin) {
    const int number = BoardNumberOfLin(text);
    if (!IsStorable(number) || number < firstBoard || number > lastBoard) continue;
    if (complete.contains(number)) continue;
    LinRecord record = ParseLinRecord(text);
    record.boardNumber = number;
    if (CanBeDealt(record)) complete.insert(number);
    if (record.hasDeal) records.insert_or_assign(number, std::move(record));
  }
  return records;
}

}  // namespace

int BoardNumberOfLin(std::string_view record) {
  constexpr std::string_view kBoard = "|Board ";
  const auto at = record.find(kBoard);
  if (at == std::string_view::npos) return ParseLinRecord(record).boardNumber;
  return std::max(LeadingNumber(record.substr(at + kBoard.size())), 0);
}

std::vector<Board> BoardsOfLinData(const LinFile& data, int firstBoard, int lastBoard) {
  std::vector<Board> boards;
  bool auctions = false;
  for (auto& [number, record] : RecordsOf(data, firstBoard, lastBoard)) {
    if (!CanBeDealt(record)) {
      throw Fault(
          FaultNumber::TypeMismatch,
          "Board " + std::to_string(number) + " has a card twice or more than 13 cards in a hand");
    }
    if (boards.empty()) auctions = record.hasAuction;
    if (!auctions || HasForeignDealer(record)) record.calls.clear();
    boards.push_back(BoardOfLinRecord(record));
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
