#include "ui/report/bar_delegate.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QPainter>

#include "ui/report/report_model.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

constexpr double kHeightInLines = 0.5;
constexpr double kMarkWidth = 2;   // pixels
constexpr double kShortest = 1.5;  // pixels: what is not zero can be seen

double RoomFor(const QFontMetrics& metrics, const QModelIndex& index) {
  return index.data(ReportModel::BarWidthRole).toDouble() * metrics.height();
}

/// From zero to the number.
QRectF BarIn(const QRectF& room, CellBar kind, double part) {
  const bool middle = kind == CellBar::AboutZero;
  const double zero = middle ? room.center().x() : room.left();
  const double longest = middle ? room.width() / 2 : room.width();
  const double length = part == 0 ? 0 : std::clamp(std::abs(part) * longest, kShortest, longest);
  return {part < 0 ? zero - length : zero, room.top(), length, room.height()};
}

void DrawBar(QPainter& painter, const QRectF& room, CellBar kind, double part,
             const QColor& colour) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  const QRectF bar = BarIn(room, kind, part);
  if (kind == CellBar::AboutZero) {
    QColor line = colour;
    line.setAlphaF(0.5F);
    painter.setPen(QPen(line, 1));
    painter.drawLine(QPointF(room.center().x(), room.top() - 2),
                     QPointF(room.center().x(), room.bottom() + 2));
  }
  if (part > 0) {
    painter.fillRect(bar, colour);
  } else if (part < 0) {
    painter.setPen(QPen(colour, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(bar.adjusted(0.5, 0.5, -0.5, -0.5));
  }
}

/// Across the bar, so that it can be seen whether that ends before or behind it; in a gap of the
/// ground's colour, as the bar may have that of the mark.
void DrawMark(QPainter& painter, const QRectF& room, double part, const QColor& colour,
              const QColor& ground) {
  const double at =
      std::clamp(room.left() + part * room.width(), room.left(), room.right() - kMarkWidth);
  const double out = room.height() / 3;
  const QRectF mark(at, room.top() - out, kMarkWidth, room.height() + 2 * out);
  painter.fillRect(mark.adjusted(-1, 0, 1, 0), ground);
  painter.fillRect(mark, colour);
}

}  // namespace

void BarDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  SuitDelegate::paint(painter, option, index);
  const QVariant part = index.data(ReportModel::BarRole);
  if (!part.isValid()) return;
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const bool chosen = cell.state.testFlag(QStyle::State_Selected);
  const bool active = cell.state.testFlag(QStyle::State_Active);
  const auto group = active ? QPalette::Active : QPalette::Inactive;
  const QColor colour =
      cell.palette.color(group, chosen ? QPalette::HighlightedText : QPalette::Highlight);
  const double height = kHeightInLines * cell.fontMetrics.height();
  const double margin = cell.fontMetrics.averageCharWidth();
  const QRectF room(cell.rect.left() + margin, cell.rect.center().y() + 0.5 - height / 2,
                    RoomFor(cell.fontMetrics, index), height);
  painter->save();
  painter->setClipRect(cell.rect);
  DrawBar(*painter, room, static_cast<CellBar>(index.data(ReportModel::BarKindRole).toInt()),
          part.toDouble(), colour);
  if (const QVariant mark = index.data(ReportModel::MarkRole); mark.isValid()) {
    DrawMark(*painter, room, mark.toDouble(),
             cell.palette.color(group, chosen ? QPalette::HighlightedText : QPalette::Text),
             cell.palette.color(group, chosen ? QPalette::Highlight : QPalette::Base));
  }
  painter->restore();
}

QSize BarDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QSize size = SuitDelegate::sizeHint(option, index);
  if (index.data(ReportModel::BarKindRole).toInt() != static_cast<int>(CellBar::None)) {
    size.rwidth() += static_cast<int>(
        std::ceil(RoomFor(option.fontMetrics, index) + 2 * option.fontMetrics.averageCharWidth()));
  }
  return size;
}

}  // namespace tricklet::ui
