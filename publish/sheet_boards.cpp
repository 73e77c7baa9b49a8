#include "publish/sheet_boards.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tricklet {
bool SheetBoards::Read(const BoardRange& range) {
  auto gathered = GatherBoards(session_, range, false);
  if (!gathered) return false;
  all_ = std::move(gathered->published);
  remark_ = std::move(gathered->remark);
  remarked_ = range;
  ofTables_ = false;
  last_ = nullptr;
  return true;
}

std::shared_ptr<const Published> SheetBoards::Of(const BoardRange& range) {
  if (last_ != nullptr && lastRange_ == range) return last_;
  auto boards = std::make_shared<Published>();
  boards->results = all_.results;
  std::copy_if(all_.boards.begin(), all_.boards.end(), std::back_inserter(boards->boards),
               [&range](const PublishedBoard& one) { return range.Has(one.board.boardNumber); });
  last_ = std::move(boards);
  lastRange_ = range;
  return last_;
}

bool SheetBoards::LackTables(const BoardRange& range) const {
  return std::any_of(all_.boards.begin(), all_.boards.end(), [&range](const PublishedBoard& one) {
    return range.Has(one.board.boardNumber) && one.complete && !one.board.makeableValid;
  });
}

void SheetBoards::ComputeTables(const BoardRange& range) {
  auto gathered = GatherBoards(session_, range, true);
  if (!gathered) gathered = GatherBoards(session_, range, false);  // with the tables until then
  if (gathered) Take(std::move(*gathered), range);
}

/// Puts boards of `range` that were read afresh in the place of those before.
void SheetBoards::Take(Gathered fresh, const BoardRange& range) {
  for (PublishedBoard& one : fresh.published.boards) {
    const auto before =
        std::find_if(all_.boards.begin(), all_.boards.end(), [&one](const PublishedBoard& known) {
          return known.board.boardNumber == one.board.boardNumber;
        });
    if (before != all_.boards.end()) *before = std::move(one);
  }
  remark_ = std::move(fresh.remark);
  remarked_ = range;
  ofTables_ = true;
  last_ = nullptr;
}

std::string SheetBoards::RemarkOn(const BoardRange& range, bool tables) {
  if (!(remarked_ == range) || (ofTables_ && !tables)) {
    auto gathered = GatherBoards(session_, range, false);
    remark_ = gathered ? std::move(gathered->remark) : std::string();
    remarked_ = range;
    ofTables_ = false;
  }
  return remark_;
}

}  // namespace tricklet
