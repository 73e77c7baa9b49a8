#include "ui/panes/board_list_delegate.h"

#include <algorithm>

#include "ui/panes/board_list_model.h"
#include "ui/style/theme.h"

namespace tricklet::ui {

QSize BoardListDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const {
  const QSize size = QStyledItemDelegate::sizeHint(option, index);
  return {size.width(), std::max(size.height(), option.fontMetrics.height() * 4 / 3)};
}

void BoardListDelegate::initStyleOption(QStyleOptionViewItem* option,
                                        const QModelIndex& index) const {
  SuitDelegate::initStyleOption(option, index);
  if (!index.data(BoardListModel::kVulnerableRole).toBool()) return;
  // The red of hearts can be read on every background of the window.
  option->palette.setColor(QPalette::Text,
                           SuitColourOnWindow(Suit::Hearts, false, option->palette));
}

}  // namespace tricklet::ui
