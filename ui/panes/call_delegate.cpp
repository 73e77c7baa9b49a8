#include "ui/panes/call_delegate.h"

#include <QPainter>

namespace tricklet::ui {

void CallDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  const QString symbol = index.data(kSymbolRole).toString();
  if (symbol.isEmpty()) {
    QStyledItemDelegate::paint(painter, option, index);
    return;
  }
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const QString whole = cell.text;  // "4" and the symbol
  const QString level = whole.chopped(symbol.size());
  const int width = cell.fontMetrics.horizontalAdvance(whole);
  QRect room = cell.rect;
  room.setLeft(room.left() + std::max(0, (room.width() - width) / 2));

  painter->save();
  painter->setFont(cell.font);
  painter->setPen(cell.palette.color(QPalette::Text));
  painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter, level);
  room.setLeft(room.left() + cell.fontMetrics.horizontalAdvance(level));
  painter->setPen(index.data(kSymbolColourRole).value<QColor>());
  painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter, symbol);
  painter->restore();
}

}  // namespace tricklet::ui
