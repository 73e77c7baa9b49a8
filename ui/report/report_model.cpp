#include "ui/report/report_model.h"

#include <algorithm>
#include <cmath>

#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

bool SameHeadings(const ReportGrid& a, const ReportGrid& b) {
  return std::equal(a.columns.begin(), a.columns.end(), b.columns.begin(), b.columns.end(),
                    [](const ReportColumn& one, const ReportColumn& other) {
                      return one.heading == other.heading;
                    });
}

/// So that a column of numbers is not as wide as two words.
QString InTwoLines(QString heading) {
  const qsizetype at = heading.lastIndexOf(u' ');
  return at < 0 ? heading : heading.replace(at, 1, u'\n');
}

}  // namespace

void ReportModel::Show(ReportGrid grid) {
  if (grid.rows.size() == grid_.rows.size() && SameHeadings(grid, grid_)) {
    grid_ = std::move(grid);
    Measure();
    if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    return;
  }
  beginResetModel();
  grid_ = std::move(grid);
  Measure();
  endResetModel();
}

void ReportModel::Measure() {
  greatest_.assign(grid_.columns.size(), 0);
  for (const auto& row : grid_.rows) {
    for (std::size_t column = 0; column < row.size(); ++column) {
      greatest_[column] = std::max({greatest_[column], std::abs(row[column].value.value_or(0)),
                                    row[column].mark.value_or(0)});
    }
  }
}

const ReportCell& ReportModel::At(const QModelIndex& index) const {
  return grid_.rows.at(static_cast<std::size_t>(index.row()))
      .at(static_cast<std::size_t>(index.column()));
}

const ReportColumn& ReportModel::ColumnAt(int column) const {
  return grid_.columns.at(static_cast<std::size_t>(column));
}

int ReportModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(grid_.rows.size());
}

int ReportModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(grid_.columns.size());
}

QVariant ReportModel::BarOf(const QModelIndex& index, const std::optional<double>& value) const {
  const double greatest = greatest_.at(static_cast<std::size_t>(index.column()));
  if (ColumnAt(index.column()).bar == CellBar::None || !value || greatest <= 0) return {};
  return *value / greatest;
}

/// A text that may not fit stands there in full.
QString ReportModel::TipOf(const QModelIndex& index) const {
  const ReportCell& cell = At(index);
  return cell.tip.isEmpty() && !ColumnAt(index.column()).number ? cell.text : cell.tip;
}

QString ReportModel::SpokenOf(const QModelIndex& index) const {
  const ReportCell& cell = At(index);
  if (cell.text.isEmpty()) return tr("not known");
  return cell.tip.isEmpty() ? cell.text : cell.text + QStringLiteral(", ") + cell.tip;
}

QVariant ReportModel::data(const QModelIndex& index, int role) const {
  switch (role) {
    case Qt::DisplayRole:
      return At(index).text;
    case Qt::ToolTipRole:
      return TipOf(index);
    case Qt::AccessibleTextRole:
      return SpokenOf(index);
    case Qt::TextAlignmentRole:
      return static_cast<int>(Qt::AlignVCenter |
                              (ColumnAt(index.column()).number ? Qt::AlignRight : Qt::AlignLeft));
    case BarRole:
      return BarOf(index, At(index).value);
    case MarkRole:
      return BarOf(index, At(index).mark);
    case BarWidthRole:
      return ColumnAt(index.column()).barWidth;
    case BarKindRole:
      return static_cast<int>(ColumnAt(index.column()).bar);
    default:
      return {};
  }
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  const ReportColumn& column = ColumnAt(section);
  switch (role) {
    case Qt::DisplayRole:
      return column.number ? InTwoLines(column.heading) : column.heading;
    case Qt::AccessibleTextRole:
      return column.heading;
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
      return column.rule;
    case Qt::TextAlignmentRole:
      return static_cast<int>(Qt::AlignVCenter | (column.number ? Qt::AlignRight : Qt::AlignLeft));
    default:
      return {};
  }
}

ReportOrder::ReportOrder(ReportModel* rows) : QSortFilterProxyModel(rows), rows_(*rows) {
  setSourceModel(rows);
}

int ReportOrder::RowOf(const QModelIndex& index) const {
  return index.isValid() ? mapToSource(index).row() : -1;
}

QModelIndex ReportOrder::PlaceOf(int row) const {
  return row < 0 ? QModelIndex() : mapFromSource(rows_.index(row, 0));
}

bool ReportOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  const auto cell = [this](const QModelIndex& at) -> const ReportCell& {
    return rows_.Grid()
        .rows[static_cast<std::size_t>(at.row())][static_cast<std::size_t>(at.column())];
  };
  const ReportCell& a = cell(left);
  const ReportCell& b = cell(right);
  // The order of those who have nothing is turned with the rest, and must not be.
  const bool rising = sortOrder() == Qt::AscendingOrder;
  if (a.text.isEmpty() != b.text.isEmpty()) return a.text.isEmpty() != rising;
  if (a.value.has_value() != b.value.has_value()) return a.value.has_value() == rising;
  if (a.value && *a.value != *b.value) return *a.value < *b.value;
  if (a.value) return false;
  return QString::localeAwareCompare(a.text, b.text) < 0;
}

}  // namespace tricklet::ui
