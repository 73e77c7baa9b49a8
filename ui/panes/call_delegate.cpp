#include "ui/panes/call_delegate.h"

#include <algorithm>

#include <QPainter>

#include "ui/style/symbols.h"

namespace tricklet::ui {

namespace {

/// Right of the text in the middle of `room`, as far as there is room for it.
void DrawDot(QPainter& painter, const QRect& room, int textWidth, const QColor& colour) {
  const double height = painter.fontMetrics().height();
  const double radius = height / 7;
  const double wanted = room.center().x() + textWidth / 2.0 + 2.5 * radius;
  const double x = std::min(wanted, room.right() - radius);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawEllipse(QPointF(x, room.center().y() + 0.5), radius, radius);
}

}  // namespace

void CallDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  const QString symbol = index.data(kSymbolRole).toString();
  if (symbol.isEmpty()) {
    QStyledItemDelegate::paint(painter, option, index);
  }
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  painter->save();
  painter->setFont(cell.font);
  if (!symbol.isEmpty()) {
    DrawWithSymbol(*painter, cell.rect, cell.text.chopped(symbol.size()),
                   cell.palette.color(QPalette::Text), symbol,
                   index.data(kSymbolColourRole).value<QColor>());
  }
  if (index.data(kDotRole).toBool()) {
    DrawDot(*painter, cell.rect, painter->fontMetrics().horizontalAdvance(cell.text),
            cell.palette.color(QPalette::Link));
  }
  painter->restore();
}

}  // namespace tricklet::ui
