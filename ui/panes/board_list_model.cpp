#include "ui/panes/board_list_model.h"

#include <QGuiApplication>

namespace tricklet::ui {

void BoardListModel::Show(const LibraryState& library) {
  if (library.maxBoard == maxBoard_ && library.boardPresent == present_) return;
  beginResetModel();
  maxBoard_ = library.maxBoard;
  present_ = library.boardPresent;
  endResetModel();
}

int BoardListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : maxBoard_;
}

QVariant BoardListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= maxBoard_) return {};
  const int boardNumber = index.row() + 1;
  const bool present = present_.at(static_cast<std::size_t>(boardNumber));
  if (role == Qt::DisplayRole || role == Qt::EditRole) {
    return (present ? tr("Board %1") : tr("Board %1 (empty)")).arg(boardNumber);
  }
  if (role == Qt::ForegroundRole && !present) {
    return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
  }
  return {};
}

}  // namespace tricklet::ui
