#include "ui/print/sheets.h"

#include <algorithm>
#include <utility>

#include <QCoreApplication>
#include <QPainter>

#include "ui/print/board_pages.h"
#include "ui/print/page_source.h"
#include "ui/print/print_style.h"
#include "ui/print/traveller_sheets.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

// In points. Printers reach everything but the outermost quarter of an inch (18 points); some need
// a little more at the end of the sheet.
constexpr double kMargin = 28;
constexpr double kTitleHeight = 18;
constexpr double kTitleSize = 13;
constexpr double kLine = 12;
constexpr double kSmallSize = 7.5;
constexpr double kHeadGap = 4;
constexpr double kSubtitlePart = 0.6;  // of the width; the rest is the heading's

QRectF WithinMargins(const QPageLayout& layout) {
  const QSizeF paper = layout.fullRect(QPageLayout::Point).size();
  return {kMargin, kMargin, paper.width() - 2 * kMargin, paper.height() - 2 * kMargin};
}

double HeadHeight(const SheetChoices& choices) {
  return (choices.title.empty() ? 0 : kTitleHeight) + kLine + kHeadGap;
}

}  // namespace

Sheets::Sheets(Published published, SheetChoices choices)
    : Sheets(std::make_shared<const Published>(std::move(published)), std::move(choices)) {}

Sheets::Sheets(std::shared_ptr<const Published> published, SheetChoices choices)
    : published_(std::move(published)), choices_(std::move(choices)) {
  const QSizeF room = Room().size();
  source_ = choices_.layout == SheetLayout::Travellers
                ? MakeTravellerPages(*published_, choices_, room)
                : MakeBoardPages(*published_, choices_, room);
}

Sheets::Sheets(std::vector<SheetTable> tables, SheetChoices choices)
    : choices_(std::move(choices)),
      source_(MakeTablePages(std::move(tables), choices_, Room().size())) {}

int Sheets::Pages() const {
  return std::max(1, source_->Pages());
}

QPageLayout Sheets::Layout() const {
  const QPageSize paper(choices_.paper == Paper::A4 ? QPageSize::A4 : QPageSize::Letter);
  return {paper, choices_.landscape ? QPageLayout::Landscape : QPageLayout::Portrait, {}};
}

QRectF Sheets::Room() const {
  return WithinMargins(Layout()).adjusted(0, HeadHeight(choices_), 0, -kLine - kHeadGap);
}

void Sheets::Paint(QPainter& painter, int page) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  PaintFrame(painter, page);
  if (page < source_->Pages()) source_->Paint(painter, Room(), page);
  painter.restore();
}

void Sheets::PaintFrame(QPainter& painter, int page) const {
  const PrintStyle style{.colours = choices_.colours};
  const QRectF within = WithinMargins(Layout());
  QRectF line(within.topLeft(), QSizeF(within.width(), kTitleHeight));
  if (!choices_.title.empty()) {
    PaintLine(painter, line, ToQt(choices_.title),
              {.size = kTitleSize, .bold = true, .colour = style.Text()}, style);
    line.moveTop(line.bottom());
  }
  line.setHeight(kLine);
  TextStyle text{.size = kSmallSize, .colour = style.Quiet()};
  const double part = kSubtitlePart * within.width();
  PaintLine(painter, line.adjusted(0, 0, part - within.width() - kHeadGap, 0),
            ToQt(choices_.subtitle), text, style);
  const bool exists = page < source_->Pages();
  const QRectF foot(within.left(), within.bottom() - kLine, within.width(), kLine);
  if (exists) PaintLine(painter, foot, source_->Foot(page), text, style);
  text.align = Qt::AlignRight;
  if (exists) PaintLine(painter, line.adjusted(part, 0, 0, 0), source_->Heading(page), text, style);
  PaintLine(painter, foot,
            QCoreApplication::translate("Sheets", "Page %1 of %2").arg(page + 1).arg(Pages()), text,
            style);
}

}  // namespace tricklet::ui
