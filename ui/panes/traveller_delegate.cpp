#include "ui/panes/traveller_delegate.h"

#include <QApplication>
#include <QPainter>

#include "ui/panes/traveller_model.h"

namespace tricklet::ui {
namespace {

/// As the style places a text in a cell.
QRect TextRoom(const QStyleOptionViewItem& cell, const QStyle& style) {
  const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
  return cell.rect.adjusted(margin, 0, -margin, 0);
}

void DrawParts(QPainter& painter, QRect room, const QString& text, const QString& symbol,
               const QColor& textColour, const QColor& symbolColour) {
  const qsizetype at = text.indexOf(symbol);
  const std::pair<QString, QColor> parts[] = {{text.left(at), textColour},
                                              {symbol, symbolColour},
                                              {text.mid(at + symbol.size()), textColour}};
  for (const auto& [part, colour] : parts) {
    painter.setPen(colour);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, part);
    room.setLeft(room.left() + painter.fontMetrics().horizontalAdvance(part));
  }
}

void DrawParLines(QPainter& painter, const QRect& room, const QColor& colour) {
  painter.setPen(QPen(colour, 1, Qt::DashLine));
  painter.drawLine(room.topLeft(), room.topRight());
  painter.drawLine(room.bottomLeft(), room.bottomRight());
}

}  // namespace

void TravellerDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const QStyle* style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
  const QString symbol = index.data(TravellerModel::SymbolRole).toString();
  const QString text = cell.text;
  const bool parts = !symbol.isEmpty() &&
                     cell.fontMetrics.horizontalAdvance(text) <= TextRoom(cell, *style).width();
  if (parts) cell.text.clear();
  style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
  painter->save();
  if (parts) {
    painter->setFont(cell.font);
    DrawParts(*painter, TextRoom(cell, *style), text, symbol, cell.palette.color(QPalette::Text),
              index.data(TravellerModel::SymbolColourRole).value<QColor>());
  }
  if (index.data(TravellerModel::ParRole).toBool()) {
    DrawParLines(*painter, cell.rect, cell.palette.color(QPalette::PlaceholderText));
  }
  painter->restore();
}

}  // namespace tricklet::ui
