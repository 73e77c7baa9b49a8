#include "ui/panes/board_filter.h"

#include <utility>

#include "ui/panes/board_list_model.h"

namespace tricklet::ui {

BoardFilter::BoardFilter(BoardListModel* boards) : QSortFilterProxyModel(boards), boards_(boards) {
  setSourceModel(boards);
}

void BoardFilter::Find(BoardQuery query) {
  query_ = std::move(query);
  invalidateRowsFilter();
}

bool BoardFilter::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const {
  return query_.Empty() || query_.Matches(boards_->At(row + 1));
}

}  // namespace tricklet::ui
