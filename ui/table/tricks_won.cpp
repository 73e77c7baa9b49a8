#include "ui/table/tricks_won.h"

#include <algorithm>

namespace tricklet::ui {
namespace {

constexpr double kBackAspect = 1.4;
constexpr double kLeastBack = 12;  // height; below it upright and lying look the same
/// What South's caption, at its widest, leaves free on either side, as a share of its room.
constexpr double kWing = 0.3;

}  // namespace

TricksWonLayout LayOutTricksWon(const TableLayout& table, const PlaySnapshot& play) {
  TricksWonLayout layout;
  const QRectF& caption = table.hands[Seat::South].caption;
  const double room = kWing * caption.width();
  // A back is as high as the caption; where the row would be too long it closes up to a half.
  const double high = std::min(caption.height(), room / (1 + (kTricks - 1) * 0.5));
  if (high < kLeastBack) return layout;
  const double step = std::min((room - high) / (kTricks - 1), high * 0.8);
  for (std::size_t trick = 0; trick < layout.size(); ++trick) {
    const bool upright = play.now.trickSides.at(trick) == Side::NorthSouth;
    QRectF& back = layout.at(trick);
    back.setSize(upright ? QSizeF(high / kBackAspect, high) : QSizeF(high, high / kBackAspect));
    back.moveCenter(
        {caption.left() + high / 2 + step * static_cast<double>(trick), caption.center().y()});
  }
  return layout;
}

void DrawTricksWon(QPainter& painter, const TricksWonLayout& layout, const PlaySnapshot& play,
                   CardBacks& backs) {
  const PlayState& now = play.now;
  // A trick that still lies open on the table is counted, but not turned yet.
  const int turned = now.tricksPlayed - (now.trickGathered || now.cardsInTrick > 0 ? 0 : 1);
  for (int trick = 0; trick < turned; ++trick) {
    const QRectF& back = layout.at(static_cast<std::size_t>(trick));
    if (!back.isEmpty()) backs.Draw(painter, back);
  }
}

}  // namespace tricklet::ui
