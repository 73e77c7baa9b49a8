#include "ui/print/sheets.h"

#include <utility>

#include <QPainter>

#include "ui/style/qt_text.h"

namespace tricklet::ui {

Sheets::Sheets(Published published, SheetChoices choices)
    : published_(std::move(published)), choices_(std::move(choices)) {}

int Sheets::Pages() const {
  return 1;
}

QPageLayout Sheets::Layout() const {
  const QPageSize paper(choices_.paper == Paper::A4 ? QPageSize::A4 : QPageSize::Letter);
  return {paper, choices_.landscape ? QPageLayout::Landscape : QPageLayout::Portrait, {}};
}

void Sheets::Paint(QPainter& painter, int /*page*/) const {
  painter.drawText(QPointF(36, 48), ToQt(choices_.title));
}

}  // namespace tricklet::ui
