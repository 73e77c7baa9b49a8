#include "ui/cards/card_designs.h"

#include <cmath>
#include <span>

#include "ui/cards/card_glyphs.h"

namespace tricklet::ui {
namespace {

struct Index {
  QRectF rank;
  double suitMiddle;  // below the upper edge
  double suitHeight;
};
// All end above 53, as a number may be written below them where half of a card is in sight.
constexpr Index kPlainIndex{{5, 7, 31, 25}, 43, 19};
constexpr Index kClassicIndex{{3, 7, 18, 19}, 36, 15};
constexpr Index kLargeIndex{{4, 6, 37, 30}, 45, 15.5};
constexpr double kBand = 45;  // width of the band with the large index
constexpr double kBandCorner = 7;

void DrawIndex(QPainter& painter, Card card, const Index& index) {
  painter.drawPath(RankOutline(card.rank, index.rank));
  painter.drawPath(
      SuitOutline(card.suit, {index.rank.center().x(), index.suitMiddle}, index.suitHeight));
}

void DrawTurned(QPainter& painter, auto draw) {
  painter.save();
  painter.translate(kFaceWidth, kFaceHeight);
  painter.rotate(180);
  draw();
  painter.restore();
}

// Places of the pips in the field: columns -1, 0, 1 and height -1 (top) to 1. The lower half is
// upside down, as in any pack of English pattern.
struct Pip {
  double column;
  double row;
};
constexpr double kThird = 1.0 / 3;
constexpr Pip kAce[]{{0, 0}};
constexpr Pip kTwo[]{{0, -1}, {0, 1}};
constexpr Pip kThree[]{{0, -1}, {0, 0}, {0, 1}};
constexpr Pip kFour[]{{-1, -1}, {1, -1}, {-1, 1}, {1, 1}};
constexpr Pip kFive[]{{-1, -1}, {1, -1}, {0, 0}, {-1, 1}, {1, 1}};
constexpr Pip kSix[]{{-1, -1}, {1, -1}, {-1, 0}, {1, 0}, {-1, 1}, {1, 1}};
constexpr Pip kSeven[]{{-1, -1}, {1, -1}, {0, -0.5}, {-1, 0}, {1, 0}, {-1, 1}, {1, 1}};
constexpr Pip kEight[]{{-1, -1}, {1, -1}, {0, -0.5}, {-1, 0}, {1, 0}, {0, 0.5}, {-1, 1}, {1, 1}};
constexpr Pip kNine[]{{-1, -1},     {1, -1},     {-1, -kThird}, {1, -kThird}, {0, 0},
                      {-1, kThird}, {1, kThird}, {-1, 1},       {1, 1}};
constexpr Pip kTen[]{{-1, -1},     {1, -1},     {0, -2 * kThird}, {-1, -kThird}, {1, -kThird},
                     {-1, kThird}, {1, kThird}, {0, 2 * kThird},  {-1, 1},       {1, 1}};

/// Empty for king, queen and jack.
std::span<const Pip> PipsOf(Rank rank) {
  static constexpr EnumArray<Rank, std::span<const Pip>, kRanks> kPips{
      {kAce, {}, {}, {}, kTen, kNine, kEight, kSeven, kSix, kFive, kFour, kThree, kTwo}};
  return kPips[rank];
}

void DrawPips(QPainter& painter, Card card) {
  constexpr double kColumn = 18;
  constexpr double kRow = 48;
  const double height = card.rank == Rank::Ace ? 52 : 20.5;
  for (const Pip& pip : PipsOf(card.rank)) {
    const QPointF above(kFaceWidth / 2 + pip.column * kColumn,
                        kFaceHeight / 2 - std::abs(pip.row) * kRow);
    if (pip.row > 0) {
      // Turning the card moves a column to the other side.
      const QPointF turned(kFaceWidth - above.x(), above.y());
      DrawTurned(painter, [&] { painter.drawPath(SuitOutline(card.suit, turned, height)); });
    } else {
      const QPointF upright(above.x(), kFaceHeight / 2 + pip.row * kRow);
      painter.drawPath(SuitOutline(card.suit, upright, height));
    }
  }
}

/// A framed letter with the suit in two opposite corners of the frame.
void DrawCourt(QPainter& painter, Card card, const QColor& ink) {
  const QRectF frame(24, 14, kFaceWidth - 48, kFaceHeight - 28);
  QColor tint = ink;
  tint.setAlphaF(0.10F);
  painter.save();
  painter.setBrush(tint);
  painter.setPen(QPen(ink, 1.6));
  painter.drawRoundedRect(frame, 5, 5);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(ink, 0.7));
  painter.drawRoundedRect(frame.adjusted(3.5, 3.5, -3.5, -3.5), 3, 3);
  painter.restore();
  painter.drawPath(RankOutline(card.rank, QRectF(32, 50, 36, 40)));
  const auto corner = [&] { painter.drawPath(SuitOutline(card.suit, {38, 31}, 17)); };
  corner();
  DrawTurned(painter, corner);
}

void DrawClassic(QPainter& painter, Card card, const QColor& ink) {
  const auto index = [&] { DrawIndex(painter, card, kClassicIndex); };
  index();
  DrawTurned(painter, index);
  if (PipsOf(card.rank).empty()) {
    DrawCourt(painter, card, ink);
  } else {
    DrawPips(painter, card);
  }
}

/// The index in reverse on a band in the suit's colour: what is in sight of a card in a hand.
void DrawBanded(QPainter& painter, Card card, const QColor& paper) {
  painter.drawPath(SuitOutline(card.suit, {kBand + (kFaceWidth - kBand) / 2, 104}, 46));
  QPainterPath body;
  body.addRoundedRect(QRectF(1, 1, kFaceWidth - 2, kFaceHeight - 2), kBandCorner, kBandCorner);
  QPainterPath band;
  band.addRect(0, 0, kBand, kFaceHeight);
  painter.drawPath(body.intersected(band));
  painter.setBrush(paper);
  DrawIndex(painter, card, kLargeIndex);
}

}  // namespace

void DrawFace(QPainter& painter, Card card, CardDesign design, const QColor& ink,
              const QColor& paper) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  switch (design) {
    case CardDesign::PipsAndCourts:
      DrawClassic(painter, card, ink);
      break;
    case CardDesign::LargeIndex:
      DrawBanded(painter, card, paper);
      break;
    case CardDesign::IndexAndSymbol:
      DrawIndex(painter, card, kPlainIndex);
      painter.drawPath(SuitOutline(card.suit, {63, 96}, 46));
      break;
  }
}

}  // namespace tricklet::ui
