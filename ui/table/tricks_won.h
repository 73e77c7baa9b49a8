// The tricks won: their backs in a row.
#pragma once

#include <array>

#include <QPainter>

#include "ui/cards/card_back.h"
#include "ui/table/play_snapshot.h"
#include "ui/table/table_layout.h"

namespace tricklet::ui {

/// The place of each trick in its order, `picCardBackV` or `picCardBackH`, at the lower edge of the
/// felt beside South's caption; all empty where there is no room.
using TricksWonLayout = std::array<QRectF, kTricks>;

TricksWonLayout LayOutTricksWon(const TableLayout& table, const PlaySnapshot& play);

void DrawTricksWon(QPainter& painter, const TricksWonLayout& layout, const PlaySnapshot& play,
                   CardBacks& backs);

}  // namespace tricklet::ui
