#include "ui/print/slip_cell.h"

#include <algorithm>

#include <QPainter>

#include "ui/print/diagram.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

constexpr double kPadding = 9;
constexpr double kHeading = 1.4;   // height of number and seat, as a multiple of the hand's font
constexpr double kLongest = 10.7;  // symbol and 13 cards, the same
constexpr double kLine = 0.4;      // in points
constexpr double kMark = 5;

}  // namespace

void PaintSlip(QPainter& painter, const Board& board, Seat seat, const QRectF& cell,
               const PrintStyle& style) {
  const QRectF room = cell.adjusted(kPadding, kPadding, -kPadding, -kPadding);
  const double size =
      std::min(room.height() / (kSuits * kLineHeight + kHeading), room.width() / kLongest);
  QRectF heading(room.left(), room.top(), room.width(), size * kHeading);
  const TextStyle text{.size = size, .bold = true, .colour = style.Text()};
  const QString number = QString::number(board.boardNumber);
  heading.setLeft(heading.left() + PaintLine(painter, heading, number, text, style) + size);
  PaintLine(painter, heading, ToQt(SeatName[seat]), text, style);
  if (!HasCards(board.hands[seat])) return;  // not known, and no four voids
  PaintHand(painter, board.hands[seat], room.adjusted(0, heading.height(), 0, 0), size, style);
}

void PaintCutMarks(QPainter& painter, const QRectF& cell, const PrintStyle& style) {
  painter.save();
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(style.Rule(), kLine, Qt::DashLine));
  painter.drawRect(cell);
  painter.setPen(QPen(style.Text(), 2 * kLine));
  for (const QPointF& corner :
       {cell.topLeft(), cell.topRight(), cell.bottomLeft(), cell.bottomRight()}) {
    const double x = corner.x() < cell.center().x() ? kMark : -kMark;
    const double y = corner.y() < cell.center().y() ? kMark : -kMark;
    painter.drawLine(corner, corner + QPointF(x, 0));
    painter.drawLine(corner, corner + QPointF(0, y));
  }
  painter.restore();
}

}  // namespace tricklet::ui
