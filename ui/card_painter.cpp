#include "ui/card_painter.h"

#include <algorithm>
#include <cmath>

#include "ui/card_designs.h"
#include "ui/theme.h"

namespace tricklet::ui {
namespace {

constexpr double kCornerShare = 0.07;  // of the card's width
const QColor kPaper(0xFF, 0xFE, 0xF9);
const QColor kEdge(0x9A, 0x9C, 0x94);

/// A soft shadow: three rounded rectangles, each a little larger than the last.
void DrawShadow(QPainter& painter, const QRectF& card, double radius, double reach) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 26));
  for (int ring = 1; ring <= 3; ++ring) {
    const double grow = reach * ring / 3 - reach / 6;
    painter.drawRoundedRect(card.adjusted(-grow, -grow, grow, grow).translated(0, reach / 6),
                            radius + grow, radius + grow);
  }
}

}  // namespace

void CardPainter::SetLook(const CardLook& look) {
  if (look == look_) return;
  look_ = look;
  faces_.fill(QPixmap());
  blank_ = QPixmap();
}

/// Room for the shadow, in whole pixels of the widget.
double CardPainter::Margin() const {
  return std::clamp(std::ceil(look_.size.width() * 0.025), 1.0, 6.0);
}

void CardPainter::Draw(QPainter& painter, QPointF corner, Card card) {
  QPixmap& face = faces_.at(static_cast<std::size_t>(card.Index()));
  if (face.isNull()) face = Render(card);
  const auto onPixel = [&](double at) {
    return std::round((at - Margin()) * look_.pixelRatio) / look_.pixelRatio;
  };
  painter.drawPixmap(QPointF(onPixel(corner.x()), onPixel(corner.y())), face);
}

/// A card without print, the same for all; most of the work.
QPixmap CardPainter::RenderBlank() const {
  const double margin = Margin();
  const QSizeF room = (look_.size + QSizeF(2 * margin, 2 * margin)) * look_.pixelRatio;
  QPixmap blank(std::max(1, static_cast<int>(std::ceil(room.width()))),
                std::max(1, static_cast<int>(std::ceil(room.height()))));
  blank.setDevicePixelRatio(look_.pixelRatio);
  blank.fill(Qt::transparent);
  QPainter painter(&blank);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF body(QPointF(margin, margin), look_.size);
  const double radius = body.width() * kCornerShare;
  DrawShadow(painter, body, radius, margin);
  const double line = std::max(1.0 / look_.pixelRatio, body.width() * 0.008);
  painter.setPen(QPen(kEdge, line));
  painter.setBrush(kPaper);
  painter.drawRoundedRect(body.adjusted(line / 2, line / 2, -line / 2, -line / 2), radius, radius);
  return blank;
}

QPixmap CardPainter::Render(Card card) {
  if (blank_.isNull()) blank_ = RenderBlank();
  QPixmap face = blank_;
  QPainter painter(&face);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(Margin(), Margin());
  painter.scale(look_.size.width() / kFaceWidth, look_.size.height() / kFaceHeight);
  DrawFace(painter, card, look_.design, SuitColourOnCard(card.suit, look_.fourColours));
  return face;
}

}  // namespace tricklet::ui
