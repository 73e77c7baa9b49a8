#include "ui/panes/call_delegate.h"

#include <QPainter>

#include "ui/style/symbols.h"

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
  painter->save();
  painter->setFont(cell.font);
  DrawWithSymbol(*painter, cell.rect, cell.text.chopped(symbol.size()),
                 cell.palette.color(QPalette::Text), symbol,
                 index.data(kSymbolColourRole).value<QColor>());
  painter->restore();
}

}  // namespace tricklet::ui
