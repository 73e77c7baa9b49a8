// The auction on paper and in pictures.
#pragma once

#include <array>
#include <vector>

#include <QColor>
#include <QPointF>
#include <QString>

#include "publish/call_rows.h"

class QPainter;

namespace tricklet::ui {

struct PrintStyle;

/// How its columns look; measures in points.
struct CallColumns {
  struct Heading {
    QString text;
    QColor colour;
  };
  std::array<Heading, kSeats> headings;  ///< in the order of `kCallSeats`
  double size = 0;                       ///< of the font
  double row = 0;                        ///< the height of a row
  double column = 0;                     ///< the width of a column
};

/// Paints headings and rows from `at`, their upper left corner, on. Returns the lower edge: that of
/// `at` where there are no rows.
double PaintCalls(QPainter& painter, QPointF at, const std::vector<CallRow>& rows,
                  const CallColumns& columns, const PrintStyle& style);

}  // namespace tricklet::ui
