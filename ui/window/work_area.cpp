#include "ui/window/work_area.h"

#include <algorithm>
#include <cmath>

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/style/progress_frame.h"
#include "ui/style/side_column.h"
#include "ui/table/table_layout.h"
#include "ui/table/table_view.h"

namespace tricklet::ui {
namespace {

// Widths of the columns in heights of their font.
constexpr double kLeftWidth = 17;
constexpr int kWidthStep = 10;  // of a command, in tenths
constexpr double kLeastChosenWidth = 10;
constexpr double kLeastRightWidth = 22;
constexpr double kRightWidthFromAfar = 17;
constexpr double kMostRightWidth = 46;  // a traveller with its names
/// Lines of text in the height of a work area whose columns have the window's font.
constexpr double kLines = 56;
/// Lines of text on a screen that is looked at from afar; what is to be read from the back row is
/// larger (`Section::SetFromAfar`).
constexpr double kLinesFromAfar = 26;
/// So that a window that is dragged larger does not lay out its texts anew for every pixel.
constexpr double kFactorStep = 0.05;
constexpr int kTenths = 10;

/// A column that is hidden may keep its room.
int WidthTaken(const SideColumn* column) {
  const bool takesRoom = !column->isHidden() || column->sizePolicy().retainSizeWhenHidden();
  return takesRoom ? column->width() : 0;
}

}  // namespace

double ColumnFontFactor(int height, int fontHeight, bool fromAfar) {
  const double lines = static_cast<double>(height) / std::max(1, fontHeight);
  const double near = std::clamp(lines / kLines, 1.0, kMostGrowth);
  if (!fromAfar) return std::floor(near / kFactorStep + 1e-9) * kFactorStep;
  return std::ceil(std::max(near, lines / kLinesFromAfar) / kFactorStep) * kFactorStep;
}

WorkArea::WorkArea(SideColumn* left, TableView* table, SideColumn* right, ProgressFrame* progress,
                   QWidget* parent)
    : QWidget(parent),
      left_(left),
      table_(table),
      right_(right),
      leftHandle_(new ColumnHandle(QStringLiteral("hdlLeft"), this)),
      rightHandle_(new ColumnHandle(QStringLiteral("hdlRight"), this)) {
  table->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  auto* row = new QHBoxLayout;
  row->setSpacing(0);
  row->addWidget(left);
  row->addWidget(leftHandle_);
  row->addWidget(table, 1);
  row->addWidget(rightHandle_);
  row->addWidget(right);
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kMargin);
  column->addLayout(row, 1);
  column->addWidget(progress);
  ConnectHandle(leftHandle_, false);
  ConnectHandle(rightHandle_, true);
  for (QWidget* watched : {static_cast<QWidget*>(left), static_cast<QWidget*>(right),
                           left->widget(), right->widget()}) {
    watched->installEventFilter(this);
  }
  ShowMargin(true);
  Arrange();
}

void WorkArea::ConnectHandle(ColumnHandle* handle, bool right) {
  connect(handle, &ColumnHandle::Dragged, this, [this, right](int pixels) {
    const SideColumn* column = right ? right_ : left_;
    const int wanted = column->width() + (right ? -pixels : pixels);
    (right ? rightWidth_ : leftWidth_) = ToTenths(std::max(1, wanted));
    Arrange();
  });
  connect(handle, &ColumnHandle::Released, this,
          [this, right] { emit WidthChosen(right, right ? rightWidth_ : leftWidth_); });
  connect(handle, &ColumnHandle::Reset, this, [this, right] { emit WidthChosen(right, 0); });
}

void WorkArea::ShowMargin(bool shown) {
  const int margin = shown ? kMargin : 0;
  layout()->setContentsMargins(margin, margin, margin, margin);
  if (fromAfar_ == !shown) return;
  fromAfar_ = !shown;
  Arrange();
}

void WorkArea::SetWidths(int left, int right) {
  if (left == leftWidth_ && right == rightWidth_) return;
  leftWidth_ = left;
  rightWidth_ = right;
  Arrange();
}

void WorkArea::Widen(bool right, bool wider) {
  const int now = ToTenths((right ? right_ : left_)->width());
  emit WidthChosen(right, std::max(1, now + (wider ? kWidthStep : -kWidthStep)));
}

/// What the margin leaves; the layout itself knows it only after it has been activated.
QSize WorkArea::Room() const {
  return rect().marginsRemoved(layout()->contentsMargins()).size();
}

int WorkArea::ToTenths(int pixels) const {
  return std::max(1, pixels * kTenths / fontMetrics().height());
}

/// What was chosen or follows from the room, within what the column and the table need.
int WorkArea::WidthOf(bool right) const {
  SideColumn* column = right ? right_ : left_;
  const QSize room = Room();
  const int chosen = right ? rightWidth_ : leftWidth_;
  if (chosen > 0) {
    const SideColumn* other = right ? left_ : right_;
    const int most =
        room.width() - WidthTaken(other) - table_->minimumSizeHint().width() - 2 * kMargin;
    const int wanted = chosen * fontMetrics().height() / kTenths;
    const int least = std::max(column->LeastWidth(), column->WidthFor(kLeastChosenWidth));
    return std::max(least, std::min(wanted, most));
  }
  if (!right) return std::max(column->LeastWidth(), column->WidthFor(kLeftWidth));
  const int others = WidthTaken(left_) + 2 * kMargin;
  const int rest = room.width() - others - static_cast<int>(WidthOfTable(room.height()));
  // A small window takes from what is comfortable before it is scrolled.
  const int most = room.width() - others - table_->minimumSizeHint().width();
  const int comfortable =
      std::clamp(rest, column->WidthFor(fromAfar_ ? kRightWidthFromAfar : kLeastRightWidth),
                 column->WidthFor(kMostRightWidth));
  return std::max(column->LeastWidth(), std::min(comfortable, most));
}

/// A right column that nobody has given a width gives way down to what it needs.
QSize WorkArea::minimumSizeHint() const {
  QSize size = QWidget::minimumSizeHint();
  if (rightWidth_ == 0) size.rwidth() -= std::max(0, WidthTaken(right_) - right_->LeastWidth());
  return size;
}

void WorkArea::SetFonts() {
  const double factor = ColumnFontFactor(Room().height(), fontMetrics().height(), fromAfar_);
  const bool left = left_->SetFontFactor(factor);
  const bool right = right_->SetFontFactor(factor);
  if (left || right) emit FontChanged();
}

/// Widths and fonts depend on the window's size and on what the person has chosen, so that nothing
/// moves from board to board.
void WorkArea::Arrange() {
  SetFonts();
  left_->setFixedWidth(WidthOf(false));
  right_->setFixedWidth(WidthOf(true));
}

void WorkArea::Remeasure() {
  left_->ForgetWidth();
  right_->ForgetWidth();
  Arrange();
}

void WorkArea::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Arrange();
}

/// The gap beside a column comes, goes and stays with it. What a pane shows can need more width
/// than it did when the column was laid out.
bool WorkArea::eventFilter(QObject* watched, QEvent* event) {
  if (watched == left_->widget() || watched == right_->widget()) {
    if (event->type() == QEvent::LayoutRequest) Arrange();
  } else if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
    const SideColumn* column = watched == left_ ? left_ : right_;
    ColumnHandle* handle = watched == left_ ? leftHandle_ : rightHandle_;
    KeepRoom(handle, column->sizePolicy().retainSizeWhenHidden());
    handle->setVisible(!column->isHidden());
    Arrange();
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace tricklet::ui
