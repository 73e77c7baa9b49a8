// Mouse and keys on the table. Outside of play and editing all of them are left to others.
#include <QApplication>
#include <QMouseEvent>

#include "ui/table/table_view.h"

namespace tricklet::ui {

bool TableView::IsOurKey(const QKeyEvent& event) const {
  if (edit_) return TableEdit(*edit_).Key(event.key(), event.modifiers()).ours;
  if (!play_) return false;
  if (event.key() == Qt::Key_Space && event.modifiers() == Qt::NoModifier) {
    return play_->now.onPlay.has_value();
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
  if (edit_ && !event->isAutoRepeat() && EditKey(*edit_, *event)) return;
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
  if (edit_ && event->button() == Qt::LeftButton) {
    Ask(edit_->Press(LayOutEdit(size(), board_.hands), event->position()));
    return;
  }
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
  if (edit_) {
    mousePressEvent(event);
  } else if (!play_) {
    QWidget::mouseDoubleClickEvent(event);
  }
}

void TableView::mouseMoveEvent(QMouseEvent* event) {
  QWidget::mouseMoveEvent(event);
  if (edit_ && (event->buttons() & Qt::LeftButton) != 0) {
    edit_->Drag(LayOutEdit(size(), board_.hands), event->position(),
                QApplication::startDragDistance());
    update();
  }
  ShowCursor(event->position());
}

void TableView::mouseReleaseEvent(QMouseEvent* event) {
  if (edit_ && event->button() == Qt::LeftButton) {
    Ask(edit_->Release(LayOutEdit(size(), board_.hands), event->position()));
  } else {
    QWidget::mouseReleaseEvent(event);
  }
}

/// Shows what has become of the edit, and passes on what it asks for.
void TableView::Ask(const std::optional<CardMove>& move) {
  Describe();
  if (move) emit MoveAsked(move->card, SeatOf(move->to));
}

bool TableView::EditKey(TableEdit& edit, const QKeyEvent& event) {
  const TableEdit::KeyAnswer answer = edit.Key(event.key(), event.modifiers());
  if (answer.ours) Ask(answer.move);
  return answer.ours;
}

void TableView::ShowEditCursor(const TableEdit& edit, QPointF mouse) {
  const bool card = EditedCardAt(LayOutEdit(size(), board_.hands), board_.hands, mouse).has_value();
  const EditMethod method = settings_.editMethod;
  if (edit.Held()) {
    setCursor(Qt::ClosedHandCursor);
  } else if (card && method == EditMethod::Dragging) {
    setCursor(Qt::OpenHandCursor);
  } else if (method == EditMethod::Clicking && (card || edit.Chosen())) {
    setCursor(Qt::PointingHandCursor);
  } else {
    unsetCursor();
  }
}

void TableView::ShowCursor(QPointF mouse) {
  if (edit_) {
    ShowEditCursor(*edit_, mouse);
    return;
  }
  bool legal = false;
  if (play_) {
    const auto hit = CardAt(Layout(), mouse);
    legal = hit && play_->IsLegal(hit->card);
  }
  legal ? setCursor(Qt::PointingHandCursor) : unsetCursor();
}

}  // namespace tricklet::ui
