#include "ui/style/rows_view.h"

#include <QEvent>
#include <QHeaderView>

#include "ui/style/focus_ring.h"

namespace tricklet::ui {

RowsView::RowsView(QWidget* parent) : QTableView(parent) {
  new FocusRing(this);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  setShowGrid(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
  SetRowHeight();
}

/// The same for all, so that none has to be measured.
void RowsView::SetRowHeight() {
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
}

QSize RowsView::SizeOf(int rows, int characters) const {
  return {fontMetrics().averageCharWidth() * characters,
          horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize() +
              2 * frameWidth()};
}

void RowsView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  SetRowHeight();
  FitColumns();
}

}  // namespace tricklet::ui
