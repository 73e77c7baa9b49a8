// A board as hand records show it: the diagram with table and par.
#pragma once

#include <QRectF>
#include <QSizeF>

#include "publish/published.h"
#include "publish/sheet_choices.h"
#include "ui/print/print_style.h"

class QPainter;

namespace tricklet::ui {

/// The size of the font in which a board fits a cell of this size.
double RecordFontSize(QSizeF cell);

/// Paints nothing outside `cell`. Which of points, table and par are shown is in `choices`.
void PaintRecord(QPainter& painter, const PublishedBoard& published, const SheetChoices& choices,
                 const QRectF& cell, const PrintStyle& style);

/// Paints the table of makeable tricks into the lower right corner of `room`, in a font of `size`
/// or smaller.
void PaintTable(QPainter& painter, const MakeableTable& table, const QRectF& room, double size,
                const PrintStyle& style);

}  // namespace tricklet::ui
