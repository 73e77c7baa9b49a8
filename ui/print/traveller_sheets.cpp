#include "ui/print/traveller_sheets.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QCoreApplication>
#include <QPainter>

#include "publish/sheet_tables.h"
#include "ui/print/print_style.h"
#include "ui/print/table_layout.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

constexpr double kRuleWidth = 0.6;
constexpr double kHairline = 0.25;
constexpr double kTitleGap = 8;
constexpr double kTitlePart = 0.5;  // of the room that details have when par stands beside them

QRectF CellPlace(const QRectF& row, const ColumnPlace& column) {
  return {row.left() + column.left, row.top(), column.width, row.height()};
}

Qt::Alignment AlignmentOf(ColumnKind kind) {
  return kind == ColumnKind::Number ? Qt::AlignRight : Qt::AlignLeft;
}

class TablePages : public PageSource {
 public:
  TablePages(std::vector<SheetTable> tables, const SheetChoices& choices, QSizeF room)
      : tables_(std::move(tables)),
        style_{.colours = choices.colours},
        columns_(ColumnsOf(tables_, room.width())),
        pages_(DividePages(tables_, columns_, room.height())) {}

  int Pages() const override { return static_cast<int>(pages_.size()); }

  QString Heading(int page) const override {
    const TablePage& parts = At(page);
    const SheetTable& first = *parts.front().table;
    switch (first.kind) {
      case SheetTableKind::Traveller:
        return ToQt(TravellersHeading(first.boardNumber, LastBoard(parts)));
      case SheetTableKind::Entrants:
      case SheetTableKind::Boards:
        return QCoreApplication::translate("Sheets", "Session report");
      case SheetTableKind::Ranking:
      case SheetTableKind::Remarks:
        break;
    }
    return QCoreApplication::translate("Sheets", "Ranking");
  }

  QString Foot(int page) const override {
    for (const TablePart& part : At(page)) {
      if (!part.table->foot.empty()) return ToQt(part.table->foot);
    }
    return {};
  }

  void Paint(QPainter& painter, const QRectF& room, int page) const override {
    for (const TablePart& part : At(page)) {
      const TableColumns& columns = columns_.at(part.table->kind);
      QRectF place(room.left(), room.top() + part.top, room.width(),
                   MeasuresOf(part.table->kind).titleLine);
      PaintTitle(painter, part, place);
      place.setTop(place.bottom());
      place.setWidth(columns.Width());
      if (part.table->kind != SheetTableKind::Remarks) PaintHeadings(painter, part, place);
      PaintRows(painter, part, place);
    }
  }

 private:
  const TablePage& At(int page) const { return pages_.at(static_cast<std::size_t>(page)); }

  static int LastBoard(const TablePage& parts) {
    int last = 0;
    for (const TablePart& part : parts) last = std::max(last, part.table->boardNumber);
    return last;
  }

  void PaintTitle(QPainter& painter, const TablePart& part, const QRectF& place) const;
  void PaintHeadings(QPainter& painter, const TablePart& part, QRectF& place) const;
  void PaintRows(QPainter& painter, const TablePart& part, QRectF place) const;
  void PaintRule(QPainter& painter, const QRectF& above, double width) const;

  std::vector<SheetTable> tables_;
  PrintStyle style_;
  ColumnsByKind columns_;
  std::vector<TablePage> pages_;
};

/// The title with what belongs to it, and "continued" on pages after the first.
void TablePages::PaintTitle(QPainter& painter, const TablePart& part, const QRectF& place) const {
  const SheetTable& table = *part.table;
  const TextStyle title{
      .size = MeasuresOf(table.kind).titleSize, .bold = true, .colour = style_.Text()};
  const double width = PaintLine(painter, place, ToQt(table.title), title, style_);
  QRectF rest = place.adjusted(width + kTitleGap, 0, 0, 0);
  TextStyle text{.size = MeasuresOf(table.kind).cellSize, .colour = style_.Quiet()};
  QString details = ToQt(table.details);
  if (part.first > 0) {
    details += (details.isEmpty() ? QString() : QStringLiteral(", ")) +
               QCoreApplication::translate("Sheets", "continued");
  }
  const double detailsPart = table.aside.empty() ? 1 : kTitlePart;
  const double used =
      PaintLine(painter, QRectF(rest.topLeft(), QSizeF(rest.width() * detailsPart, rest.height())),
                details, text, style_);
  text.align = Qt::AlignRight;
  PaintLine(painter, rest.adjusted(used + kTitleGap, 0, 0, 0), ToQt(table.aside), text, style_);
}

/// Leaves `place` below the headings.
void TablePages::PaintHeadings(QPainter& painter, const TablePart& part, QRectF& place) const {
  const SheetTable& table = *part.table;
  const auto& columns = columns_.at(table.kind).Places();
  place.setHeight(MeasuresOf(table.kind).headingLine);
  for (std::size_t column = 0; column < columns.size(); ++column) {
    if (columns[column].width <= 0) continue;
    PaintLine(painter, CellPlace(place, columns[column]), ToQt(table.columns[column].heading),
              {.size = MeasuresOf(table.kind).headingSize,
               .bold = true,
               .colour = style_.Quiet(),
               .align = AlignmentOf(table.columns[column].kind)},
              style_);
  }
  PaintRule(painter, place, kRuleWidth);
  place.moveTop(place.bottom());
}

void TablePages::PaintRows(QPainter& painter, const TablePart& part, QRectF place) const {
  const SheetTable& table = *part.table;
  const TableColumns& columns = columns_.at(table.kind);
  const TableMeasures& measures = MeasuresOf(table.kind);
  for (std::size_t row = part.first; row < part.end; ++row) {
    place.setHeight(columns.HeightOf(table, row));
    for (std::size_t column = 0; column < columns.Places().size(); ++column) {
      const ColumnPlace& own = columns.Places()[column];
      if (own.width <= 0) continue;
      QRectF line = CellPlace(place, own).adjusted(0, measures.rowPadding / 2, 0, 0);
      line.setHeight(measures.cellLine);
      for (const QString& text : columns.LinesOf(table, row, column)) {
        PaintLine(painter, line, text,
                  {.size = measures.cellSize,
                   .colour = style_.Text(),
                   .align = AlignmentOf(table.columns[column].kind)},
                  style_);
        line.translate(0, measures.cellLine);
      }
    }
    if (table.kind != SheetTableKind::Remarks) PaintRule(painter, place, kHairline);
    place.moveTop(place.bottom());
  }
}

void TablePages::PaintRule(QPainter& painter, const QRectF& above, double width) const {
  painter.save();
  painter.setPen(QPen(style_.Rule(), width));
  painter.drawLine(above.bottomLeft(), above.bottomRight());
  painter.restore();
}

}  // namespace

std::unique_ptr<PageSource> MakeTravellerPages(const Published& published,
                                               const SheetChoices& choices, QSizeF room) {
  std::vector<SheetTable> tables = TravellerTables(published, choices.par);
  if (choices.ranking) {
    for (SheetTable& table : RankingTables(RankingOf(published)))
      tables.push_back(std::move(table));
  }
  return MakeTablePages(std::move(tables), choices, room);
}

std::unique_ptr<PageSource> MakeTablePages(std::vector<SheetTable> tables,
                                           const SheetChoices& choices, QSizeF room) {
  return std::make_unique<TablePages>(std::move(tables), choices, room);
}

}  // namespace tricklet::ui
