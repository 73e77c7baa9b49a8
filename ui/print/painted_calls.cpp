#include "ui/print/painted_calls.h"

#include <QPainter>

#include "ui/print/print_style.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {

double PaintCalls(QPainter& painter, QPointF at, const std::vector<CallRow>& rows,
                  const CallColumns& columns, const PrintStyle& style) {
  if (rows.empty()) return at.y();
  for (std::size_t x = 0; x < columns.headings.size(); ++x) {
    const CallColumns::Heading& heading = columns.headings.at(x);
    QRectF place(at.x() + static_cast<double>(x) * columns.column, at.y(), columns.column,
                 columns.row);
    PaintLine(painter, place, heading.text,
              {.size = columns.size, .bold = true, .colour = heading.colour}, style);
    for (const CallRow& calls : rows) {
      place.moveTop(place.bottom());
      PaintLine(painter, place, ToQt(calls.at(x)), {.size = columns.size, .colour = style.Text()},
                style);
    }
  }
  return at.y() + columns.row * static_cast<double>(rows.size() + 1);
}

}  // namespace tricklet::ui
