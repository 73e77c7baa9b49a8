#include "ui/cards/card_painter.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "ui/cards/card_designs.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

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

QColor DimmedSuitColour(Suit suit, bool fourColours) {
  constexpr int kStep = 106;  // percent
  QColor ink = SuitColourOnCard(suit, fourColours);
  while (Contrast(ink, kDimPaper) < kCardContrast) ink = ink.darker(kStep);
  return ink;
}

void CardPainter::SetLook(const CardLook& look) {
  if (look == look_) return;
  look_ = look;
  pack_ = {};
  dimmed_ = {};
}

/// Room for the shadow, in whole pixels of the widget.
double CardPainter::Margin() const {
  return std::clamp(std::ceil(look_.size.width() * 0.025), 1.0, 6.0);
}

void CardPainter::Draw(QPainter& painter, QPointF corner, Card card) {
  DrawFrom(pack_, painter, corner, card, SuitColourOnCard(card.suit, look_.fourColours), kPaper);
}

void CardPainter::DrawDimmed(QPainter& painter, QPointF corner, Card card) {
  DrawFrom(dimmed_, painter, corner, card, DimmedSuitColour(card.suit, look_.fourColours),
           kDimPaper);
}

void CardPainter::DrawFrom(Pack& pack, QPainter& painter, QPointF corner, Card card,
                           const QColor& ink, const QColor& paper) {
  QPixmap& face = pack.faces.at(static_cast<std::size_t>(card.Index()));
  if (face.isNull()) {
    if (pack.blank.isNull()) pack.blank = RenderBlank(paper);
    face = pack.blank;
    QPainter onFace(&face);
    onFace.setRenderHint(QPainter::Antialiasing);
    onFace.translate(Margin(), Margin());
    onFace.scale(look_.size.width() / kFaceWidth, look_.size.height() / kFaceHeight);
    DrawFace(onFace, card, look_.design, ink, paper);
  }
  const auto onPixel = [&](double at) {
    return std::round((at - Margin()) * look_.pixelRatio) / look_.pixelRatio;
  };
  painter.drawPixmap(QPointF(onPixel(corner.x()), onPixel(corner.y())), face);
}

/// A blank card: the same for all cards, and what takes the most time to draw.
QPixmap CardPainter::RenderBlank(const QColor& paper) const {
  QPixmap blank = Transparent(look_, Margin());
  QPainter painter(&blank);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF body(QPointF(Margin(), Margin()), look_.size);
  const double radius = body.width() * kCornerShare;
  DrawShadow(painter, body, radius, Margin());
  const double line = std::max(1.0 / look_.pixelRatio, body.width() * 0.008);
  painter.setPen(QPen(kEdge, line));
  painter.setBrush(paper);
  painter.drawRoundedRect(body.adjusted(line / 2, line / 2, -line / 2, -line / 2), radius, radius);
  return blank;
}

void PaintThumbnail(QPainter& painter, const QRect& room, CardDesign design, bool fourColours) {
  constexpr std::array kShown{Card{Suit::Spades, Rank::Ace}, Card{Suit::Hearts, Rank::King},
                              Card{Suit::Diamonds, Rank::Ten}, Card{Suit::Clubs, Rank::Seven}};
  constexpr double kMargin = 2;  // for the shadow
  constexpr double kStep = 0.6;  // in cards' widths
  constexpr double kAcross = 1 + (kShown.size() - 1) * kStep;
  const QRectF inner = QRectF(room).adjusted(kMargin, kMargin, -kMargin, -kMargin);
  const double width = std::min(inner.width() / kAcross, inner.height() * kFaceWidth / kFaceHeight);
  if (width < 1) return;
  CardPainter cards;
  cards.SetLook({{width, width * kFaceHeight / kFaceWidth},
                 painter.device()->devicePixelRatioF(),
                 design,
                 fourColours});
  QPointF corner(inner.center().x() - width * kAcross / 2,
                 inner.center().y() - width * kFaceHeight / kFaceWidth / 2);
  for (const Card card : kShown) {
    cards.Draw(painter, corner, card);
    corner.rx() += kStep * width;
  }
}

}  // namespace tricklet::ui
