#include "ui/cards/card_back.h"

#include <algorithm>
#include <cmath>

#include "ui/cards/card_painter.h"

namespace tricklet::ui {
namespace {

const QColor kBackBlue(0x2B, 0x4C, 0x8C);
const QColor kBackLine(0xB9, 0xC9, 0xEA);
const QColor kBackEdge(0x5A, 0x5C, 0x58);
constexpr double kMostStep = 9;  // pixels between two diagonals

/// Diagonals both ways within `field`.
void DrawLattice(QPainter& painter, const QRectF& field, double step) {
  painter.setClipRect(field);
  painter.setPen(QPen(kBackLine, step / 6));
  const int lines = static_cast<int>((field.width() + field.height()) / step);
  for (int line = 0; line <= lines; ++line) {
    const double x = field.left() - field.height() + line * step;
    painter.drawLine(QPointF(x, field.bottom()), QPointF(x + field.height(), field.top()));
    painter.drawLine(QPointF(x, field.top()), QPointF(x + field.height(), field.bottom()));
  }
  painter.setClipping(false);
}

QPixmap Render(QSize pixels, double ratio) {
  QPixmap picture(pixels);
  picture.fill(Qt::transparent);
  picture.setDevicePixelRatio(ratio);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF body = QRectF(QPointF(), QSizeF(pixels) / ratio).adjusted(0.5, 0.5, -0.5, -0.5);
  const double shortSide = std::min(body.width(), body.height());
  painter.setPen(QPen(kBackEdge, 1));
  painter.setBrush(kPaper);
  painter.drawRoundedRect(body, 0.1 * shortSide, 0.1 * shortSide);
  const double border = std::max(1.5, 0.11 * shortSide);
  const QRectF field = body.adjusted(border, border, -border, -border);
  painter.fillRect(field, kBackBlue);
  // Three diamonds across a small back; more, and no larger ones, across that of a hand's card.
  const double wished = std::max(shortSide / 7, std::min(shortSide / 3, kMostStep));
  DrawLattice(painter, field, std::max(3.0, field.width() / std::round(field.width() / wished)));
  return picture;
}

}  // namespace

void CardBacks::Draw(QPainter& painter, const QRectF& place) {
  const double ratio = painter.device()->devicePixelRatioF();
  const QSize pixels = (place.size() * ratio).toSize().expandedTo({1, 1});
  QPixmap& picture = pictures_.at(place.width() > place.height() ? 1 : 0);
  if (picture.size() != pixels) picture = Render(pixels, ratio);
  const auto onPixel = [&](double at) { return std::round(at * ratio) / ratio; };
  painter.drawPixmap(QPointF(onPixel(place.left()), onPixel(place.top())), picture);
}

}  // namespace tricklet::ui
