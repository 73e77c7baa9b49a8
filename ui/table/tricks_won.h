// The tricks won: their count in the corner and their backs in a row.
#pragma once

#include <array>

#include <QFont>
#include <QPainter>

#include "ui/cards/card_back.h"
#include "ui/table/play_snapshot.h"
#include "ui/table/table_layout.h"
#include "ui/table/table_style.h"

namespace tricklet::ui {

/// At the lower edge of the felt, on either side of South's caption.
struct TricksWonLayout {
  PerSide<QRectF> counts;  ///< in the right corner; one above the other where there is room
  /// The place of each trick in its order, `picCardBackV` or `picCardBackH`; all empty where there
  /// is no room.
  std::array<QRectF, kTricks> backs;
};

TricksWonLayout LayOutTricksWon(const TableLayout& table, const PlaySnapshot& play);

void DrawTricksWon(QPainter& painter, const TricksWonLayout& layout, const PlaySnapshot& play,
                   CardBacks& backs, const TableColours& colours, const QFont& font);

}  // namespace tricklet::ui
