#include "publish/sheet_boards.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tricklet {

bool SheetBoards::Read(const BoardRange& range) {
  auto gathered = GatherBoards(session_, range, false);
  if (!gathered) return false;
  all_ = std::move(*gathered);
  last_ = nullptr;
  return true;
}

std::shared_ptr<const Published> SheetBoards::Of(const BoardRange& range) {
  if (last_ != nullptr && lastRange_ == range) return last_;
  auto boards = std::make_shared<Published>();
  boards->results = all_.results;
  if (LackTables(range)) boards->whyNoTables = all_.whyNoTables;
  std::copy_if(all_.boards.begin(), all_.boards.end(), std::back_inserter(boards->boards),
               [&range](const PublishedBoard& one) { return range.Has(one.board.boardNumber); });
  last_ = std::move(boards);
  lastRange_ = range;
  return last_;
}

bool SheetBoards::LackTables(const BoardRange& range) const {
  return std::any_of(all_.boards.begin(), all_.boards.end(), [&range](const PublishedBoard& one) {
    return range.Has(one.board.boardNumber) && LacksTable(one);
  });
}

void SheetBoards::ComputeTables(const BoardRange& range) {
  auto fresh = GatherBoards(session_, range, true);
  if (!fresh) fresh = GatherBoards(session_, range, false);  // with the tables until then
  if (!fresh) return;
  for (PublishedBoard& one : fresh->boards) {
    const auto before =
        std::find_if(all_.boards.begin(), all_.boards.end(), [&one](const PublishedBoard& known) {
          return known.board.boardNumber == one.board.boardNumber;
        });
    if (before != all_.boards.end()) *before = std::move(one);
  }
  all_.whyNoTables = std::move(fresh->whyNoTables);
  last_ = nullptr;
}

}  // namespace tricklet
