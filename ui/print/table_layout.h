// Where tables stand on pages: the widths of their columns, the lines of their cells, and how they
// are divided. In points.
#pragma once

#include <cstddef>
#include <map>
#include <vector>

#include <QRectF>
#include <QStringList>

#include "publish/sheet_tables.h"

namespace tricklet::ui {

/// Sizes of texts and heights of lines.
struct TableMeasures {
  double cellSize = 7.5;
  double headingSize = 6.5;
  double titleSize = 10;
  double titleLine = 15;
  double headingLine = 11;
  double cellLine = 10;
  double rowPadding = 2;
};

/// A ranking is larger, since it hangs on a wall.
const TableMeasures& MeasuresOf(SheetTableKind kind);

/// A column; without a width where none of its cells has a text.
struct ColumnPlace {
  double left = 0;
  double width = 0;
};

/// The columns of tables of one kind, which are the same for all of them.
class TableColumns {
 public:
  /// `tables` are of one kind. Travellers become `room` wide, others at the most.
  TableColumns(const std::vector<const SheetTable*>& tables, double room);

  const std::vector<ColumnPlace>& Places() const { return places_; }
  double Width() const { return width_; }

  /// The lines of a cell. Those of names are two at the most, and may need to be shortened.
  QStringList LinesOf(const SheetTable& table, std::size_t row, std::size_t column) const;
  double HeightOf(const SheetTable& table, std::size_t row) const;

 private:
  std::vector<ColumnPlace> places_;
  double width_ = 0;
};

/// Rows `first`.. < `end` of a table, from `top` of a page on, below its title and headings.
struct TablePart {
  const SheetTable* table = nullptr;
  std::size_t first = 0;
  std::size_t end = 0;
  double top = 0;
};
using TablePage = std::vector<TablePart>;

/// Columns by the kind of their tables.
using ColumnsByKind = std::map<SheetTableKind, TableColumns>;
ColumnsByKind ColumnsOf(const std::vector<SheetTable>& tables, double room);

/// As many tables as fit on each page. One that does not fit on the rest of a page begins the next
/// one, one that is longer than a page goes on on further pages. The ranking begins a page.
std::vector<TablePage> DividePages(const std::vector<SheetTable>& tables,
                                   const ColumnsByKind& columns, double height);

/// Title and headings, in points.
double HeadHeight(const SheetTable& table);

}  // namespace tricklet::ui
