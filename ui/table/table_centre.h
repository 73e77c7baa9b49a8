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
/// The room that the panel leaves for the contract, below the board's name.
QRectF ContractRoom(const QRectF& panel, const Board& board, const QFont& font);

/// Draws the panel while the board is being played: a trick lies on it, and `corner` has board and
/// vulnerability in words, where they can be read in it.
void DrawCentreInPlay(QPainter& painter, const QRectF& panel, const QRectF& corner,
                      const Board& board, const TableColours& colours, const QFont& font);
/// The room of the trick in the panel.
QRectF TrickRoom(const QRectF& panel);

}  // namespace tricklet::ui
