// Cells of one size on a page.
#pragma once

#include <functional>

#include <QRectF>
#include <QSizeF>

class QPainter;

namespace tricklet::ui {

struct PrintStyle;

/// Columns and rows for a number of cells, which are filled row by row.
struct SheetGrid {
  int columns = 1;
  int rows = 1;

  QRectF Cell(const QRectF& room, int index) const;
  /// Lines round the first `cells` cells.
  void PaintRules(QPainter& painter, const QRectF& room, int cells, const PrintStyle& style) const;
};

/// The grid of at least `cells` cells in which what they hold is largest. `sizeIn` gives the size
/// that a cell's content would have. Empty cells count against a grid.
SheetGrid BestGrid(QSizeF room, int cells, const std::function<double(QSizeF)>& sizeIn);

}  // namespace tricklet::ui
