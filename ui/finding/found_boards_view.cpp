#include "ui/finding/found_boards_view.h"

#include <algorithm>
#include <array>

#include <QHeaderView>

#include "ui/style/suit_delegate.h"

namespace tricklet::ui {
namespace {

/// What a column has room for; that of the notes takes what is left over.
constexpr std::array<const char*, kFoundColumns> kWidest{
    "Tuesday Pairs 12",         "999",       "N",        "None",   "7\u2660xx S",
    "7\u2660xx= NS \u22122220", "40\u20130", "13-0-0-0", "A note", "999 tables"};

constexpr int Section(FoundColumn column) {
  return static_cast<int>(column);
}

}  // namespace

FoundBoardsView::FoundBoardsView(FoundBoardsModel* boards, bool fourColours, QWidget* parent)
    : RowsView(parent), boards_(boards), order_(new FoundOrder(boards)) {
  setObjectName(QStringLiteral("grdFound"));
  setAccessibleName(tr("Boards found"));
  setModel(order_);
  auto* cells = new SuitDelegate(this);
  cells->SetFourColours(fourColours);
  setItemDelegate(cells);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setAlternatingRowColors(true);
  horizontalHeader()->setSortIndicatorShown(true);
  horizontalHeader()->setSortIndicatorClearable(true);
  horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  setSortingEnabled(true);
  connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this] { emit ChoiceChanged(); });
  connect(this, &QAbstractItemView::activated, this, &FoundBoardsView::Entered);
  FitColumns();
}

void FoundBoardsView::ShowLibraries(bool shown) {
  setColumnHidden(Section(FoundColumn::Library), !shown);
  FitNotes();
}

std::vector<const FoundBoard*> FoundBoardsView::Chosen() const {
  std::vector<int> places;
  for (const QModelIndex& index : selectionModel()->selectedRows()) places.push_back(index.row());
  std::sort(places.begin(), places.end());
  std::vector<const FoundBoard*> chosen;
  chosen.reserve(places.size());
  for (const int place : places) {
    chosen.push_back(&boards_->At(order_->mapToSource(order_->index(place, 0)).row()));
  }
  return chosen;
}

const FoundBoard* FoundBoardsView::Current() const {
  const QModelIndex row = order_->mapToSource(currentIndex());
  return row.isValid() ? &boards_->At(row.row()) : nullptr;
}

void FoundBoardsView::Choose(int row) {
  const int column = Section(FoundColumn::Number);
  const QModelIndex place =
      row < 0 ? order_->index(0, column) : order_->mapFromSource(boards_->index(row, column));
  if (!place.isValid()) return;
  setCurrentIndex(place);
  scrollTo(place);
}

/// By what a column may hold rather than by what it does: boards may be found by the thousand.
void FoundBoardsView::FitColumns() {
  const int room = fontMetrics().averageCharWidth() * 2;
  for (int column = 0; column < kFoundColumns; ++column) {
    const QString widest = QString::fromUtf8(kWidest.at(static_cast<std::size_t>(column)));
    const int heading = horizontalHeader()->sectionSizeHint(column);
    setColumnWidth(column, std::max(fontMetrics().horizontalAdvance(widest) + room, heading));
  }
  FitNotes();
}

void FoundBoardsView::FitNotes() {
  const int notes = Section(FoundColumn::Notes);
  int left = viewport()->width();
  for (int column = 0; column < kFoundColumns; ++column) {
    if (column != notes && !isColumnHidden(column)) left -= columnWidth(column);
  }
  setColumnWidth(notes, std::max(left, horizontalHeader()->sectionSizeHint(notes)));
}

void FoundBoardsView::resizeEvent(QResizeEvent* event) {
  RowsView::resizeEvent(event);
  FitNotes();
}

QSize FoundBoardsView::sizeHint() const {
  return SizeOf(18, 170);
}
QSize FoundBoardsView::minimumSizeHint() const {
  return SizeOf(4, 40);
}

}  // namespace tricklet::ui
