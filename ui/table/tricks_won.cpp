#include "ui/table/tricks_won.h"

#include <algorithm>

namespace tricklet::ui {
namespace {

constexpr double kBackAspect = 1.4;
constexpr double kLeastBack = 12;  // height; below it upright and lying look the same
// Of the caption's height.
constexpr double kGap = 0.4;
constexpr double kCountWidth = 3.1;
constexpr double kMostCountHeight = 1.5;  // beside South's cards
/// What South's caption, at its widest, leaves free on either side, as a share of its room.
constexpr double kWing = 0.3;

/// Where a full hand of South's cards ends on the right; a hand shown as text is narrower.
double RightOfSouth(const TableLayout& table) {
  constexpr double kWidestFan = 1 + (kCardsInHand - 1) * kFanStep;
  return table.hands[Seat::South].area.center().x() + kWidestFan / 2 * table.cardSize.width();
}

void PlaceCounts(TricksWonLayout& layout, const TableLayout& table) {
  const QRectF& caption = table.hands[Seat::South].caption;
  const double high = caption.height();
  const double beside = caption.right() - RightOfSouth(table) - kGap * high;
  QRectF& northSouth = layout.counts[Side::NorthSouth];
  QRectF& eastWest = layout.counts[Side::EastWest];
  if (beside >= kCountWidth * high) {
    const double each = std::min(kMostCountHeight * high, beside / kCountWidth);
    eastWest = {caption.right() - beside, caption.bottom() - each, beside, each};
    northSouth = eastWest.translated(0, -each);
    return;
  }
  const double width = std::min(kCountWidth * high, kWing * caption.width() / 2);
  eastWest = {caption.right() - width, caption.top(), width, high};
  northSouth = eastWest.translated(-width, 0);
}

}  // namespace

TricksWonLayout LayOutTricksWon(const TableLayout& table, const PlaySnapshot& play) {
  TricksWonLayout layout;
  PlaceCounts(layout, table);
  const QRectF& caption = table.hands[Seat::South].caption;
  const double room = kWing * caption.width();
  // A back is as high as the caption; where the row would be too long it closes up to a half.
  const double high = std::min(caption.height(), room / (1 + (kTricks - 1) * 0.5));
  if (high < kLeastBack) return layout;
  const double step = std::min((room - high) / (kTricks - 1), high * 0.8);
  for (std::size_t trick = 0; trick < layout.backs.size(); ++trick) {
    const bool upright = play.now.trickSides.at(trick) == Side::NorthSouth;
    QRectF& back = layout.backs.at(trick);
    back.setSize(upright ? QSizeF(high / kBackAspect, high) : QSizeF(high, high / kBackAspect));
    back.moveCenter(
        {caption.left() + high / 2 + step * static_cast<double>(trick), caption.center().y()});
  }
  return layout;
}

void DrawTricksWon(QPainter& painter, const TricksWonLayout& layout, const PlaySnapshot& play,
                   CardBacks& backs, const TableColours& colours, const QFont& font) {
  const PlayState& now = play.now;
  // A trick that still lies open on the table is counted, but not turned yet.
  const int turned = now.tricksPlayed - (now.trickGathered || now.cardsInTrick > 0 ? 0 : 1);
  for (int trick = 0; trick < turned; ++trick) {
    const QRectF& back = layout.backs.at(static_cast<std::size_t>(trick));
    if (!back.isEmpty()) backs.Draw(painter, back);
  }
  QFont bold = font;
  bold.setBold(true);
  const QRectF& room = layout.counts[Side::NorthSouth];
  // One size whatever the count.
  painter.setFont(
      Fitted(bold, {QStringLiteral("MM: 13")}, room.size() * 0.96, 0.72 * room.height()));
  painter.setPen(colours.text);
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    painter.drawText(layout.counts[side], Qt::AlignRight | Qt::AlignVCenter, play.tricks[side]);
  }
}

}  // namespace tricklet::ui
