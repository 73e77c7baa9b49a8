// The hands as text: four lines, each a suit's symbol and its ranks.
#pragma once

#include <vector>

#include <QFont>
#include <QPainter>
#include <QPalette>

#include "core/board.h"
#include "core/settings.h"
#include "ui/table/play_snapshot.h"
#include "ui/table/table_layout.h"

namespace tricklet::ui {

/// Sizes of one text display; all four hands share them.
struct TextHandMeasures {
  QFont font;
  double symbolHeight = 0;
  double symbolWidth = 0;  ///< the column of symbols, with the space after it
  double lineHeight = 0;
  double markWidth = 0;  ///< room after each rank for the tricks that it leads to
};

/// Fonts as the settings ask, larger on a table larger than 760 x 680 and smaller where a hand
/// would not fit otherwise; with room for `marks` where they are asked for. `dotsPerInch` is that
/// of the screen.
TextHandMeasures MeasureTextHands(const TableLayout& layout, const HandTable& hands,
                                  const Settings& settings, double dotsPerInch, bool marks = false);

/// What a hand takes, and its panel inside its area.
QSizeF TextHandSize(const TextHandMeasures& measures, const PerSuit<Holding>& hand);
QRectF TextHandPanel(const TableLayout& layout, const TextHandMeasures& measures,
                     const PerSuit<Holding>& hand, Seat seat);

void DrawTextHand(QPainter& painter, const QRectF& panel, const TextHandMeasures& measures,
                  const PerSuit<Holding>& hand, const Settings& settings, const QPalette& palette);

/// The ranks of a hand in its panel, close up, each with the room for its mark: what a click may
/// meet.
std::vector<PlacedCard> PlaceRanks(const QRectF& panel, const TextHandMeasures& measures,
                                   const PerSuit<Holding>& hand, Seat seat);

/// What is left of a hand during play, in the panel of the whole hand. In the hand on play legal
/// ranks are bold and underlined and all others dim.
void DrawTextHandInPlay(QPainter& painter, const QRectF& panel, const TextHandMeasures& measures,
                        Seat seat, const PlaySnapshot& play, const Settings& settings,
                        const QPalette& palette);

/// A hand of `cards` cards face down: a quiet line that tells no more than that.
void DrawHiddenTextHand(QPainter& painter, const QRectF& area, const TextHandMeasures& measures,
                        int cards, Seat seat, const QPalette& palette);

}  // namespace tricklet::ui
