// Mouse and keys on the table. Outside of play all of them are left to others.
#include <QMouseEvent>

#include "ui/table_view.h"

namespace tricklet::ui {

bool TableView::IsOurKey(const QKeyEvent& event) const {
  if (!play_) return false;
  if (event.key() == Qt::Key_Space && event.modifiers() == Qt::NoModifier) {
    return play_->now.OnPlay.has_value();
  }
  return keys_.WouldTake(event.key(), event.modifiers(), play_->HandOnPlay(), play_->legal);
}

bool TableView::event(QEvent* event) {
  // A key that plays a card is not a shortcut at the same time: Escape may be one as well.
  if (event->type() == QEvent::ShortcutOverride && IsOurKey(static_cast<QKeyEvent&>(*event))) {
    event->accept();
    return true;
  }
  return QWidget::event(event);
}

void TableView::keyPressEvent(QKeyEvent* event) {
  if (!play_ || !IsOurKey(*event)) {
    QWidget::keyPressEvent(event);
    return;
  }
  if (event->isAutoRepeat()) return;  // a key held down plays one card
  if (event->key() == Qt::Key_Space) {
    keys_.Forget();
    emit OnlyCardAsked();
  } else {
    const auto answer =
        keys_.Press(event->key(), event->modifiers(), play_->HandOnPlay(), play_->legal);
    if (answer.card) emit CardAsked(*answer.card);
  }
  update();
}

void TableView::mousePressEvent(QMouseEvent* event) {
  if (!play_ || event->button() != Qt::LeftButton) {
    QWidget::mousePressEvent(event);
    return;
  }
  if (const auto hit = CardAt(Layout(), event->position())) {
    emit CardAsked(hit->card);
  } else {
    emit TrickAsked();
  }
}

void TableView::mouseDoubleClickEvent(QMouseEvent* event) {
  // The second click would meet the card below the one that was just played.
  if (!play_) QWidget::mouseDoubleClickEvent(event);
}

void TableView::mouseMoveEvent(QMouseEvent* event) {
  QWidget::mouseMoveEvent(event);
  ShowCursor(event->position());
}

void TableView::ShowCursor(QPointF mouse) {
  bool legal = false;
  if (play_) {
    const auto hit = CardAt(Layout(), mouse);
    legal = hit && play_->IsLegal(hit->card);
  }
  legal ? setCursor(Qt::PointingHandCursor) : unsetCursor();
}

}  // namespace tricklet::ui
