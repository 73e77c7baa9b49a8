#include "ui/panes/trick_delegate.h"

#include <algorithm>

#include <QPainter>
#include <QPolygonF>

#include "ui/style/highlight.h"

namespace tricklet::ui {
namespace {

// In heights of the cell's font.
constexpr double kTriangle = 0.34;
constexpr double kLine = 0.09;
constexpr double kMarkFont = 0.72;  // of the font's size

void DrawTriangle(QPainter& painter, const QRectF& room, const QColor& colour) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawPolygon(
      QPolygonF{room.topLeft(), QPointF(room.right(), room.center().y()), room.bottomLeft()});
}

/// From the left edge of `room`, and no wider than it.
void DrawMark(QPainter& painter, QRectF room, const QString& text) {
  QFont font = painter.font();
  font.setPointSizeF(font.pointSizeF() * kMarkFont);
  font.setBold(true);
  painter.setFont(font);
  const QFontMetricsF metrics(font);
  const double height = metrics.height();
  const double width =
      std::min(room.width(), std::max(metrics.horizontalAdvance(text) + height * 0.5, height));
  const QRectF pill(room.left(), room.center().y() - height / 2, width, height);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kMarkRed);
  painter.drawRoundedRect(pill, height / 2, height / 2);
  painter.setPen(Qt::white);
  painter.drawText(pill, Qt::AlignCenter, text);
}

void DrawFrame(QPainter& painter, const QRect& room, const QPen& pen) {
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(room).adjusted(1.5, 1.5, -1.5, -1.5), 3, 3);
}

void DrawFrames(QPainter& painter, const QStyleOptionViewItem& cell, const QModelIndex& index) {
  if (index.data(TrickDelegate::NextRole).toBool()) {
    DrawFrame(painter, cell.rect,
              QPen(cell.palette.color(QPalette::PlaceholderText), 1, Qt::DashLine));
  }
  if (index.data(TrickDelegate::HereRole).toBool()) {
    DrawFrame(painter, cell.rect, QPen(cell.palette.color(QPalette::Text), 1.5));
  }
  if (cell.state.testFlag(QStyle::State_HasFocus) &&
      cell.state.testFlag(QStyle::State_KeyboardFocusChange)) {
    DrawFrame(painter, cell.rect, QPen(cell.palette.color(QPalette::Highlight), 2));
  }
}

}  // namespace

void TrickDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->fillRect(cell.rect, cell.backgroundBrush);
  DrawFrames(*painter, cell, index);

  const QString symbol = index.data(SymbolRole).toString();
  const bool wins = index.data(WinsRole).toBool();
  QFont font = cell.font;
  font.setBold(wins);
  painter->setFont(font);
  const QFontMetricsF metrics(font);
  const double side = metrics.height() * kTriangle;
  const QColor text = cell.palette.color(QPalette::Text);
  QRectF room = QRectF(cell.rect).adjusted(1, 0, -1, 0);
  if (index.data(LedRole).toBool()) {
    DrawTriangle(*painter, {room.left(), room.center().y() - side / 2, side * 0.8, side}, text);
  }
  if (symbol.isEmpty()) {  // the number of a trick, or a claim
    painter->setPen(text);
    painter->drawText(room, static_cast<int>(cell.displayAlignment), cell.text);
    painter->restore();
    return;
  }
  room.setLeft(room.left() + side + 1);
  const double symbolWidth = metrics.horizontalAdvance(symbol);
  const double width = symbolWidth + metrics.horizontalAdvance(cell.text);
  painter->setPen(index.data(SymbolColourRole).value<QColor>());
  painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter, symbol);
  painter->setPen(text);
  painter->drawText(room.adjusted(symbolWidth, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                    cell.text);
  if (wins) {
    const double line = std::max(1.0, metrics.height() * kLine);
    const double below = room.center().y() + metrics.height() / 2 - line / 2;
    painter->fillRect(QRectF(room.left(), below, width, line), text);
  }
  const QString given = index.data(GivenRole).toString();
  if (!given.isEmpty()) DrawMark(*painter, room.adjusted(width + 2, 0, 0, 0), given);
  painter->restore();
}

}  // namespace tricklet::ui
