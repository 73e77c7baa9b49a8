#include "ui/print/sheet_grid.h"

#include <QPainter>

#include "ui/print/print_style.h"

namespace tricklet::ui {
namespace {

constexpr double kCostOfEmptyCell = 0.03;  // of the size
constexpr double kRuleWidth = 0.5;

}  // namespace

QRectF SheetGrid::Cell(const QRectF& room, int index) const {
  const int column = index % columns;
  const int row = index / columns;
  const QSizeF size(room.width() / columns, room.height() / rows);
  return {room.topLeft() + QPointF(column * size.width(), row * size.height()), size};
}

void SheetGrid::PaintRules(QPainter& painter, const QRectF& room, int cells,
                           const PrintStyle& style) const {
  painter.save();
  painter.setPen(QPen(style.Rule(), kRuleWidth));
  painter.setBrush(Qt::NoBrush);
  for (int i = 0; i < cells; ++i) painter.drawRect(Cell(room, i));
  painter.restore();
}

SheetGrid BestGrid(QSizeF room, int cells, const std::function<double(QSizeF)>& sizeIn) {
  SheetGrid best;
  double bestSize = 0;
  for (int columns = 1; columns <= cells; ++columns) {
    const int rows = (cells + columns - 1) / columns;
    const double size = sizeIn({room.width() / columns, room.height() / rows}) *
                        (1 - kCostOfEmptyCell * (columns * rows - cells));
    if (size <= bestSize) continue;
    bestSize = size;
    best = {columns, rows};
  }
  return best;
}

}  // namespace tricklet::ui
