// The trick in the middle of the table, and the result when the play is over.
#pragma once

#include <array>

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QSizeF>

#include "core/board.h"
#include "core/settings.h"
#include "ui/cards/card_painter.h"
#include "ui/table/play_snapshot.h"
#include "ui/table/table_style.h"

namespace tricklet::ui {

/// In the widget's pixels, within the room given. Cards may overlap one another, but their indices
/// do not where they are painted in the order of `kTrickOrder`.
struct TrickLayout {
  QSizeF cardSize;
  PerSeat<QRectF> cards;  ///< each on its seat's side
  /// Beside the cards, clear of them all; empty where there is no room.
  PerSeat<QRectF> symbols;
  QRectF corner;  ///< free of them all, beside North's card and above West's
};
inline constexpr std::array kTrickOrder{Seat::West, Seat::North, Seat::South, Seat::East};

/// Cards as large as `card`, or smaller where they would not fit.
TrickLayout LayOutTrick(const QRectF& room, QSizeF card);

/// The cards on the table with their symbols, the one that wins so far in a frame, and the place
/// that waits for its card.
void DrawTrick(QPainter& painter, const TrickLayout& layout, const PlaySnapshot& play,
               CardPainter& cards, const Settings& settings, const TableColours& colours);

void DrawScore(QPainter& painter, const QRectF& room, const QString& score,
               const TableColours& colours, const QFont& font);

}  // namespace tricklet::ui
