// A board as hand records show it: the diagram with table and par.
#pragma once

#include <QRectF>
#include <QSizeF>

#include "publish/published.h"
#include "ui/print/print_style.h"

class QPainter;

namespace tricklet::ui {

/// The size of the font in which a board fits a cell of this size.
double RecordFontSize(QSizeF cell);

/// What is shown of a board.
struct RecordParts {
  PerSeat<bool> hands{true, true, true, true};
  bool points = true;
  bool table = true;
  bool par = true;
};

/// Paints nothing outside `cell`.
void PaintRecord(QPainter& painter, const PublishedBoard& published, const RecordParts& parts,
                 const QRectF& cell, const PrintStyle& style);

/// Paints the table of makeable tricks into the lower right corner of `room`, in a font of `size`
/// or smaller.
void PaintTable(QPainter& painter, const MakeableTable& table, const QRectF& room, double size,
                const PrintStyle& style);

}  // namespace tricklet::ui
