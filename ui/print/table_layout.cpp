#include "ui/print/table_layout.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>

#include "ui/print/print_style.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

constexpr double kColumnGap = 7;
constexpr double kTableGap = 14;
constexpr double kWidestCell = 70;  // of words and numbers
constexpr double kCellsPart = 0.6;  // of the width that words and numbers can have together
constexpr double kReadable = 0.85;  // of its size, to which a name is made smaller on one line
constexpr std::size_t kRowsTogether = 3;

bool IsNames(const SheetTable& table, std::size_t column) {
  return table.columns[column].kind == ColumnKind::Names;
}

constexpr TableMeasures kUsual;
constexpr TableMeasures kLarge{.cellSize = 9.5,
                               .headingSize = 8,
                               .titleSize = 12,
                               .titleLine = 18,
                               .headingLine = 14,
                               .cellLine = 12.5,
                               .rowPadding = 3};

/// The width of the widest text of a column; 0 where no cell has any.
double NaturalWidth(const std::vector<const SheetTable*>& tables, std::size_t column) {
  double width = 0;
  double heading = 0;
  const TableMeasures& measures = MeasuresOf(tables.front()->kind);
  for (const SheetTable* table : tables) {
    heading = std::max(heading,
                       TextWidth(ToQt(table->columns[column].heading), measures.headingSize, true));
    for (const auto& cells : table->rows) {
      width = std::max(width, TextWidth(ToQt(cells[column]), measures.cellSize));
    }
  }
  return width > 0 ? std::max(width, heading) : 0;
}

/// The sum of the columns of one sort.
double SumOf(const std::vector<double>& widths, const SheetTable& table, bool names) {
  double sum = 0;
  for (std::size_t i = 0; i < widths.size(); ++i) sum += IsNames(table, i) == names ? widths[i] : 0;
  return sum;
}

/// Makes the columns of one sort `room` wide together.
void Stretch(std::vector<double>& widths, const SheetTable& table, bool names, double room) {
  const double sum = SumOf(widths, table, names);
  if (sum <= 0) return;
  for (std::size_t i = 0; i < widths.size(); ++i) {
    if (IsNames(table, i) == names) widths[i] *= room / sum;
  }
}

/// Fits the names into `room`. Those that need no more than an equal share of it keep their width,
/// so that one name without measure does not push the others aside.
void FitNames(std::vector<double>& widths, const SheetTable& table, double room) {
  const auto names = std::count_if(table.columns.begin(), table.columns.end(),
                                   [](const auto& own) { return own.kind == ColumnKind::Names; });
  const double share = room / static_cast<double>(std::max<std::ptrdiff_t>(names, 1));
  double needed = 0;
  for (std::size_t i = 0; i < widths.size(); ++i) {
    if (IsNames(table, i)) needed += std::min(widths[i], share);
  }
  for (std::size_t i = 0; i < widths.size(); ++i) {
    if (IsNames(table, i))
      widths[i] = std::min(widths[i], room - needed + std::min(widths[i], share));
  }
  if (SumOf(widths, table, true) > room) Stretch(widths, table, true, room);
}

/// Two lines, divided between two players or pairs as near to the middle as can be.
QStringList Halves(const QString& names) {
  std::optional<qsizetype> best;
  for (qsizetype at = 0; at + 1 < names.size(); ++at) {
    const bool ends = (names[at] == u'&' || names[at] == u',') && names[at + 1] == u' ';
    if (!ends) continue;
    const auto off = [&](qsizetype place) { return std::abs(2 * place - names.size()); };
    if (!best || off(at) < off(*best)) best = at;
  }
  if (!best) return {names};
  return {names.left(*best + 1), names.mid(*best + 2)};
}

/// Lines of whole words.
QStringList Wrapped(const QString& sentence, double room) {
  QStringList lines;
  for (const QString& word : sentence.split(u' ')) {
    const QString longer = lines.isEmpty() ? word : lines.back() + u' ' + word;
    if (lines.isEmpty() || TextWidth(longer, kUsual.cellSize) > room) {
      lines += word;
    } else {
      lines.back() = longer;
    }
  }
  return lines;
}

}  // namespace

const TableMeasures& MeasuresOf(SheetTableKind kind) {
  return kind == SheetTableKind::Ranking ? kLarge : kUsual;
}

TableColumns::TableColumns(const std::vector<const SheetTable*>& tables, double room) {
  if (tables.empty()) return;
  const SheetTable& table = *tables.front();
  std::vector<double> widths;
  for (std::size_t column = 0; column < table.columns.size(); ++column) {
    widths.push_back(NaturalWidth(tables, column));
    if (!IsNames(table, column)) widths.back() = std::min(widths.back(), kWidestCell);
  }
  const auto shown = std::count_if(widths.begin(), widths.end(), [](double w) { return w > 0; });
  const double text =
      room - kColumnGap * static_cast<double>(std::max<std::ptrdiff_t>(shown, 1) - 1);
  if (SumOf(widths, table, false) > kCellsPart * text)
    Stretch(widths, table, false, kCellsPart * text);
  const double names = text - SumOf(widths, table, false);
  FitNames(widths, table, names);
  if (table.kind == SheetTableKind::Traveller) Stretch(widths, table, true, names);
  for (const double width : widths) {
    if (width > 0 && width_ > 0) width_ += kColumnGap;
    places_.push_back({width_, width});
    width_ += width;
  }
}

QStringList TableColumns::LinesOf(const SheetTable& table, std::size_t row,
                                  std::size_t column) const {
  const QString text = ToQt(table.rows[row][column]);
  const double width = places_[column].width;
  if (!IsNames(table, column)) return {text};
  if (table.kind == SheetTableKind::Remarks || table.kind == SheetTableKind::Boards) {
    return Wrapped(text, width);
  }
  return kReadable * TextWidth(text, MeasuresOf(table.kind).cellSize) <= width ? QStringList(text)
                                                                               : Halves(text);
}

double TableColumns::HeightOf(const SheetTable& table, std::size_t row) const {
  qsizetype lines = 1;
  for (std::size_t column = 0; column < places_.size(); ++column) {
    if (places_[column].width > 0) lines = std::max(lines, LinesOf(table, row, column).size());
  }
  const TableMeasures& measures = MeasuresOf(table.kind);
  return measures.rowPadding + measures.cellLine * static_cast<double>(lines);
}

ColumnsByKind ColumnsOf(const std::vector<SheetTable>& tables, double room) {
  std::map<SheetTableKind, std::vector<const SheetTable*>> byKind;
  for (const SheetTable& table : tables) byKind[table.kind].push_back(&table);
  ColumnsByKind columns;
  for (const auto& [kind, own] : byKind) columns.emplace(kind, TableColumns(own, room));
  return columns;
}

double HeadHeight(const SheetTable& table) {
  const TableMeasures& measures = MeasuresOf(table.kind);
  return measures.titleLine + (table.kind == SheetTableKind::Remarks ? 0 : measures.headingLine);
}

namespace {

/// Fills pages from the top.
class PageFiller {
 public:
  PageFiller(const ColumnsByKind& columns, double height) : columns_(columns), height_(height) {}

  void Add(const SheetTable& table) {
    std::vector<double> rows;
    double all = HeadHeight(table);
    double together = all;
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
      rows.push_back(columns_.at(table.kind).HeightOf(table, row));
      all += rows.back();
      if (row < kRowsTogether) together += rows.back();
    }
    const bool kindBegins = !pages_.empty() && !pages_.back().empty() &&
                            pages_.back().back().table->kind != table.kind &&
                            table.kind == SheetTableKind::Ranking;
    // A table that fits on a page is not divided.
    const double wanted = all <= height_ ? all : together;
    if (pages_.empty() || kindBegins || top_ + wanted > height_) NewPage();
    Place(table, rows);
  }

  std::vector<TablePage> Take() { return std::move(pages_); }

 private:
  void NewPage() {
    pages_.emplace_back();
    top_ = 0;
  }

  void Place(const SheetTable& table, const std::vector<double>& rows) {
    for (std::size_t next = 0; next < rows.size();) {
      if (next > 0) NewPage();
      TablePart part{&table, next, next, top_};
      top_ += HeadHeight(table);
      // A row that is higher than a page would be never stands in the way of the others.
      do top_ += rows[next++];
      while (next < rows.size() && top_ + rows[next] <= height_);
      part.end = next;
      pages_.back().push_back(part);
      top_ += kTableGap;
    }
  }

  const ColumnsByKind& columns_;
  double height_;
  double top_ = 0;
  std::vector<TablePage> pages_;
};

}  // namespace

std::vector<TablePage> DividePages(const std::vector<SheetTable>& tables,
                                   const ColumnsByKind& columns, double height) {
  PageFiller filler(columns, height);
  for (const SheetTable& table : tables) filler.Add(table);
  return filler.Take();
}

}  // namespace tricklet::ui
