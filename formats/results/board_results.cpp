#include "formats/results/board_results.h"

#include <utility>

#include "formats/results/lin_boards.h"
#include "formats/results/traveller.h"

namespace tricklet {

ResultsByBoard ResultsOf(const LinFile& file) {
  ResultsByBoard results;
  for (const std::string& line : file.lin) {
    const int boardNumber = BoardNumberOfLin(line);
    if (!IsStorable(boardNumber)) continue;
    TravellerRow row = MakeTravellerRow(line, boardNumber);
    if (!row.HasResult()) continue;
    auto& tables = results[boardNumber];
    if (tables.size() == kMaxTravellerRows) continue;
    tables.push_back({std::move(row.record.board.calls), row.score, std::move(row.adjusted)});
  }
  return results;
}

const TableResult* ResultOf(const ResultsByBoard& results, int boardNumber, const CallList& calls) {
  const auto board = results.find(boardNumber);
  if (board == results.end()) return nullptr;
  const std::vector<TableResult>& tables = board->second;
  if (tables.size() == 1) return &tables.front();
  const TableResult* own = nullptr;
  for (const TableResult& table : tables) {
    if (calls.Empty() || !(table.calls == calls)) continue;
    const bool differs =
        own != nullptr && (table.score != own->score || table.adjusted != own->adjusted);
    if (differs) return nullptr;
    own = &table;
  }
  return own;
}

}  // namespace tricklet
