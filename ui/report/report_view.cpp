#include "ui/report/report_view.h"

#include <algorithm>

#include <QHeaderView>

#include "ui/report/bar_delegate.h"

namespace tricklet::ui {
namespace {

constexpr int kLeastNames = 18;  // characters of names in sight

bool NothingIn(const ReportGrid& grid, std::size_t column) {
  return std::all_of(grid.rows.begin(), grid.rows.end(),
                     [column](const auto& row) { return row[column].text.isEmpty(); });
}

}  // namespace

ReportView::ReportView(const QString& name, bool fourColours, QWidget* parent)
    : RowsView(parent), rows_(new ReportModel(this)), order_(new ReportOrder(rows_)) {
  setObjectName(name);
  setModel(order_);
  auto* cells = new BarDelegate(this);
  cells->SetFourColours(fourColours);
  setItemDelegate(cells);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setAlternatingRowColors(true);
  horizontalHeader()->setSortIndicatorShown(true);
  horizontalHeader()->setSortIndicatorClearable(true);
  horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  setSortingEnabled(true);
  connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this] { emit RowChosen(); });
  connect(this, &QAbstractItemView::activated, this, &ReportView::Entered);
}

void ReportView::Show(ReportGrid grid) {
  const int chosen = Chosen();
  rows_->Show(std::move(grid));
  if (chosen != Chosen()) Choose(std::min(chosen, rows_->rowCount() - 1));
  FitColumns();
}

int ReportView::Chosen() const {
  return order_->RowOf(currentIndex());
}

void ReportView::Choose(int row) {
  const QModelIndex place = order_->PlaceOf(row);
  setCurrentIndex(place);
  if (place.isValid()) scrollTo(place);
}

void ReportView::FitColumns() {
  for (int column = 0; column < rows_->columnCount(); ++column) {
    setColumnHidden(column, NothingIn(rows_->Grid(), static_cast<std::size_t>(column)));
  }
  resizeColumnsToContents();
  WidenNames();
}

/// Names are cut off where there is no room for all columns, and get all that is left over.
void ReportView::WidenNames() {
  const int least = fontMetrics().averageCharWidth() * kLeastNames;
  std::vector<int> wide;
  int left = viewport()->width();
  for (int column = 0; column < rows_->columnCount(); ++column) {
    if (isColumnHidden(column)) continue;
    if (rows_->Grid().columns[static_cast<std::size_t>(column)].wide) {
      wide.push_back(column);
    } else {
      left -= columnWidth(column);
    }
  }
  for (std::size_t i = 0; i < wide.size(); ++i) {
    const int share = left / static_cast<int>(wide.size() - i);
    const int width = std::clamp(sizeHintForColumn(wide[i]), least, std::max(share, least));
    setColumnWidth(wide[i], width);
    left -= width;
  }
}

void ReportView::resizeEvent(QResizeEvent* event) {
  RowsView::resizeEvent(event);
  WidenNames();
}

QSize ReportView::sizeHint() const {
  return SizeOf(10, 150);
}
QSize ReportView::minimumSizeHint() const {
  return SizeOf(3, 40);
}

}  // namespace tricklet::ui
