#include "ui/dialogs/import_rows_view.h"

#include <algorithm>

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include "ui/dialogs/import_rows_delegate.h"
#include "ui/dialogs/import_rows_model.h"

namespace tricklet::ui {
namespace {

/// As wide as most hands are.
const QString kUsualHand = QStringLiteral("\u2660AKQT \u2665QT98 \u2666QT9 \u2663QT9");
/// Longer texts of a file do not widen a column any more.
constexpr int kMostCharacters = 28;

}  // namespace

ImportRowsView::ImportRowsView(ImportRowsModel* rows, bool fourColours, QWidget* parent)
    : RowsView(parent), rows_(rows) {
  setObjectName(QStringLiteral("grdBoards"));
  setAccessibleName(tr("Boards of the file"));
  setModel(rows);
  setItemDelegate(new ImportRowsDelegate(fourColours, this));
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->setStretchLastSection(true);
}

void ImportRowsView::FitColumns() {
  const QFontMetrics metrics = fontMetrics();
  const int most = metrics.averageCharWidth() * kMostCharacters;
  const int margin = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1) +
                     metrics.averageCharWidth();
  const int mark = style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) + margin;
  for (const auto column : {ImportColumn::InFile, ImportColumn::StoredAs}) {
    int width = 0;
    for (int row = 0; row < rows_->rowCount(); ++row) {
      const QModelIndex cell = rows_->index(row, static_cast<int>(column));
      width = std::max(width, metrics.horizontalAdvance(cell.data().toString()));
    }
    width = std::min(width, most) + margin + (column == ImportColumn::InFile ? mark : 0);
    setColumnWidth(static_cast<int>(column),
                   std::max(width, horizontalHeader()->sectionSizeHint(static_cast<int>(column))));
  }
  setColumnWidth(static_cast<int>(ImportColumn::Hand),
                 metrics.horizontalAdvance(kUsualHand) + margin);
}

/// A mark that is clicked is changed by the table itself; the blank changes those of all rows that
/// are chosen.
void ImportRowsView::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Space || event->modifiers() != Qt::NoModifier ||
      !currentIndex().isValid()) {
    RowsView::keyPressEvent(event);
    return;
  }
  const QModelIndexList chosen = selectionModel()->selectedRows();
  const QModelIndex mark = currentIndex().siblingAtColumn(0);
  const bool wanted = mark.data(Qt::CheckStateRole).toInt() != Qt::Checked;
  rows_->Want(chosen.isEmpty() ? QModelIndexList{mark} : chosen, wanted);
}

QSize ImportRowsView::sizeHint() const {
  return SizeOf(12, 148);
}
QSize ImportRowsView::minimumSizeHint() const {
  return SizeOf(3, 60);
}

}  // namespace tricklet::ui
