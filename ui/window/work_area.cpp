#include "ui/window/work_area.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/style/progress_frame.h"
#include "ui/style/side_column.h"
#include "ui/table/table_layout.h"
#include "ui/table/table_view.h"

namespace tricklet::ui {
namespace {

// Widths of the columns in heights of the window's font.
constexpr double kLeftWidth = 16;
constexpr double kLeastRightWidth = 20;
constexpr double kMostRightWidth = 46;  // a traveller with its names

}  // namespace

WorkArea::WorkArea(SideColumn* left, TableView* table, SideColumn* right, ProgressFrame* progress,
                   QWidget* parent)
    : QWidget(parent), left_(left), right_(right) {
  left->setFixedWidth(left->WidthFor(kLeftWidth));
  right->setFixedWidth(right->WidthFor(kLeastRightWidth));
  table->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  auto* row = new QHBoxLayout;
  row->setSpacing(kMargin);
  row->addWidget(left);
  row->addWidget(table, 1);
  row->addWidget(right);
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kMargin);
  column->addLayout(row, 1);
  column->addWidget(progress);
  ShowMargin(true);
}

void WorkArea::ShowMargin(bool shown) {
  const int margin = shown ? kMargin : 0;
  layout()->setContentsMargins(margin, margin, margin, margin);
}

/// Widths depend on the window's size alone, so that nothing moves from board to board.
void WorkArea::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const QSize room = layout()->contentsRect().size();
  const int table = static_cast<int>(WidthOfTable(room.height()));
  const int rest = room.width() - left_->width() - table - 2 * kMargin;
  right_->setFixedWidth(
      std::clamp(rest, right_->WidthFor(kLeastRightWidth), right_->WidthFor(kMostRightWidth)));
}

}  // namespace tricklet::ui
