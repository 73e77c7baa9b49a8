// The middle of the table: compass, board, dealer and vulnerability.
#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>

#include "core/board.h"
#include "ui/table_style.h"

namespace tricklet::ui {

/// Draws the panel. A vulnerable seat has a red badge that says so; the dealer has a disc with a D
/// and is named in the middle.
void DrawCentre(QPainter& painter, const QRectF& panel, const Board& board,
                const TableColours& colours, const QFont& font);

}  // namespace tricklet::ui
