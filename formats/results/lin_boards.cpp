#include "formats/results/lin_boards.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "core/statistics.h"
#include "core/text.h"
#include "formats/sink/record_text.h"

namespace tricklet {
namespace {

/// A record, and how much of the deal it tells.
struct RankedRecord {
  DealRank rank = DealRank::None;
  LinRecord record;
};

/// For each board of the range, the first record with the best deal: all four hands complete, else
/// a possible deal, else any.
std::map<int, RankedRecord> RecordsOf(const LinFile& data, int firstBoard, int lastBoard) {
  std::map<int, RankedRecord> records;
  for (const std::string& text : data.lin) {
    const int number = BoardNumberOfLin(text);
    if (!IsStorable(number) || number < firstBoard || number > lastBoard) continue;
    const auto known = records.find(number);
    if (known != records.end() && known->second.rank == DealRank::Complete) continue;
    LinRecord record = ParseLinRecord(text);
    record.boardNumber = number;
    const DealRank rank = RankOf(record);
    const DealRank before = known == records.end() ? DealRank::None : known->second.rank;
    if (rank > before) records.insert_or_assign(number, RankedRecord{rank, std::move(record)});
  }
  return records;
}

/// What follows the first "|Board ". Searches for the word, not for the bar, of which a record has
/// one every few bytes.
std::optional<std::string_view> AfterHeader(std::string_view record) {
  constexpr std::string_view kWord = "Board ";
  for (auto at = record.find(kWord); at != std::string_view::npos;
       at = record.find(kWord, at + 1)) {
    if (at > 0 && record[at - 1] == '|') return record.substr(at + kWord.size());
  }
  return std::nullopt;
}

}  // namespace

DealRank RankOf(const LinRecord& record) {
  if (!record.hasDeal) return DealRank::None;
  if (!CanBeDealt(record)) return DealRank::Any;
  return GetStats(record.hands).allHandsComplete ? DealRank::Complete : DealRank::Possible;
}

int BoardNumberOfLin(std::string_view record) {
  const auto number = AfterHeader(record);
  if (!number) return ParseLinRecord(record).boardNumber;
  return std::max(LeadingNumber(*number), 0);
}

std::vector<Board> BoardsOfLinData(const LinFile& data, int firstBoard, int lastBoard,
                                   LeftOut& leftOut) {
  std::vector<Board> boards;
  bool auctions = false;
  for (auto& [number, ranked] : RecordsOf(data, firstBoard, lastBoard)) {
    if (ranked.rank < DealRank::Possible) {
      leftOut.impossible.push_back(number);
      continue;
    }
    LinRecord& record = ranked.record;
    if (boards.empty()) auctions = record.hasAuction;
    if (!auctions) record.calls.clear();
    boards.push_back(StorableBoard(record, leftOut));
  }
  return boards;
}

void ReadLinCards(const LinFile& data, int firstBoard, int lastBoard, BoardSink& sink,
                  ReadResult& result) {
  const std::vector<Board> boards = BoardsOfLinData(data, firstBoard, lastBoard, result.leftOut);
  const int total = static_cast<int>(boards.size());
  for (const Board& board : boards) {
    const int number = board.boardNumber;
    if (!sink.Begin(number, result.boardsSaved * kWholeText / total)) {
      result.cancelled = true;
      return;
    }
    sink.Store(board);
    if (++result.boardsSaved == 1) result.firstBoard = number;
    result.lastBoard = number;
  }
}

}  // namespace tricklet
