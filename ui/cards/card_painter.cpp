#include "ui/cards/card_painter.h"

#include <algorithm>
#include <cmath>

#include "ui/cards/card_designs.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

const QColor kEdge(0x9A, 0x9C, 0x94);
const QColor kShade(0x1C, 0x3A, 0x30, 120);

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

/// An empty picture with room for a card and `margin` all round.
QPixmap Transparent(const CardLook& look, double margin) {
  const QSizeF room = (look.size + QSizeF(2 * margin, 2 * margin)) * look.pixelRatio;
  QPixmap picture(std::max(1, static_cast<int>(std::ceil(room.width()))),
                  std::max(1, static_cast<int>(std::ceil(room.height()))));
  picture.setDevicePixelRatio(look.pixelRatio);
  picture.fill(Qt::transparent);
  return picture;
}

}  // namespace

void CardPainter::SetLook(const CardLook& look) {
  if (look == look_) return;
  look_ = look;
  faces_.fill(QPixmap());
  blank_ = QPixmap();
  shade_ = QPixmap();
}

/// Room for the shadow, in whole pixels of the widget.
double CardPainter::Margin() const {
  return std::clamp(std::ceil(look_.size.width() * 0.025), 1.0, 6.0);
}

void CardPainter::Draw(QPainter& painter, QPointF corner, Card card) {
  QPixmap& face = faces_.at(static_cast<std::size_t>(card.Index()));
  if (face.isNull()) face = Render(card);
  DrawOnPixel(painter, corner, face);
}

void CardPainter::DrawDimmed(QPainter& painter, QPointF corner, Card card) {
  Draw(painter, corner, card);
  if (shade_.isNull()) shade_ = RenderShade();
  DrawOnPixel(painter, corner, shade_);
}

void CardPainter::DrawOnPixel(QPainter& painter, QPointF corner, const QPixmap& picture) const {
  const auto onPixel = [&](double at) {
    return std::round((at - Margin()) * look_.pixelRatio) / look_.pixelRatio;
  };
  painter.drawPixmap(QPointF(onPixel(corner.x()), onPixel(corner.y())), picture);
}

/// A blank card: the same for all cards, and what takes the most time to draw.
QPixmap CardPainter::RenderBlank() const {
  QPixmap blank = Transparent(look_, Margin());
  QPainter painter(&blank);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF body(QPointF(Margin(), Margin()), look_.size);
  const double radius = body.width() * kCornerShare;
  DrawShadow(painter, body, radius, Margin());
  const double line = std::max(1.0 / look_.pixelRatio, body.width() * 0.008);
  painter.setPen(QPen(kEdge, line));
  painter.setBrush(kPaper);
  painter.drawRoundedRect(body.adjusted(line / 2, line / 2, -line / 2, -line / 2), radius, radius);
  return blank;
}

/// The shade that lies exactly over a card.
QPixmap CardPainter::RenderShade() const {
  QPixmap shade = Transparent(look_, Margin());
  QPainter painter(&shade);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kShade);
  const double radius = look_.size.width() * kCornerShare;
  painter.drawRoundedRect(QRectF(QPointF(Margin(), Margin()), look_.size), radius, radius);
  return shade;
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
