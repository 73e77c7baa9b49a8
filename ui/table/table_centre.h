// The middle of the table: compass, board, dealer and vulnerability.
#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>

#include "core/board.h"
#include "ui/table/table_style.h"

namespace tricklet::ui {

/// Draws the panel. A vulnerable seat has a red badge that says so; the dealer has a disc with a D
/// and is named in the middle.
void DrawCentre(QPainter& painter, const QRectF& panel, const Board& board,
                const TableColours& colours, const QFont& font);

/// Draws the panel while the board is being played: the marks alone, small and at the edges.
void DrawCentreInPlay(QPainter& painter, const QRectF& panel, const Board& board,
                      const TableColours& colours, const QFont& font);
/// The room that those marks leave free.
QRectF TrickRoom(const QRectF& panel);

}  // namespace tricklet::ui
