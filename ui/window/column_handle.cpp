#include "ui/window/column_handle.h"

#include <QMouseEvent>
#include <QPainter>

namespace tricklet::ui {
namespace {

// Of the grip that is drawn under the mouse, in pixels.
constexpr int kGripWidth = 3;
constexpr int kGripHeight = 48;

}  // namespace

ColumnHandle::ColumnHandle(const QString& name, QWidget* parent) : QWidget(parent) {
  setObjectName(name);
  setAccessibleName(tr("Width of the column"));
  setFixedWidth(kWidth);
  setCursor(Qt::SplitHCursor);
  setToolTip(tr("Drag to widen the column; double click for its usual width"));
}

void ColumnHandle::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  at_ = event->globalPosition().toPoint().x();
  dragging_ = true;
}

void ColumnHandle::mouseMoveEvent(QMouseEvent* event) {
  if (!dragging_) return;
  const int now = event->globalPosition().toPoint().x();
  if (now == at_) return;
  const int moved = now - at_;
  at_ = now;
  emit Dragged(moved);
}

void ColumnHandle::mouseReleaseEvent(QMouseEvent* /*event*/) {
  if (!dragging_) return;
  dragging_ = false;
  emit Released();
}

void ColumnHandle::mouseDoubleClickEvent(QMouseEvent* /*event*/) {
  dragging_ = false;
  emit Reset();
}

void ColumnHandle::enterEvent(QEnterEvent* event) {
  QWidget::enterEvent(event);
  under_ = true;
  update();
}

void ColumnHandle::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  under_ = false;
  update();
}

void ColumnHandle::paintEvent(QPaintEvent* /*event*/) {
  if (!under_ && !dragging_) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::PlaceholderText));
  QRectF grip(0, 0, kGripWidth, kGripHeight);
  grip.moveCenter(QRectF(rect()).center());
  painter.drawRoundedRect(grip, 1, 1);
}

}  // namespace tricklet::ui
