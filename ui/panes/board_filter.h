// Those rows of the list of boards that a person is looking for.
#pragma once

#include <QSortFilterProxyModel>

#include "library/board_find.h"

namespace tricklet::ui {

class BoardListModel;

class BoardFilter : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  explicit BoardFilter(BoardListModel* boards);

  void Find(BoardQuery query);
  bool FindsAll() const { return query_.Empty(); }

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  BoardListModel* boards_;
  BoardQuery query_;
};

}  // namespace tricklet::ui
