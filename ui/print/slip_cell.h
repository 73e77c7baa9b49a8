// A slip of paper by which one hand of a board is sorted out of the pack.
#pragma once

#include <QRectF>

#include "core/board.h"
#include "ui/print/print_style.h"

class QPainter;

namespace tricklet::ui {

/// Paints nothing outside `cell`.
void PaintSlip(QPainter& painter, const Board& board, Seat seat, const QRectF& cell,
               const PrintStyle& style);

/// Dashes round `cell`, along which it is cut out, with a mark at each corner.
void PaintCutMarks(QPainter& painter, const QRectF& cell, const PrintStyle& style);

}  // namespace tricklet::ui
