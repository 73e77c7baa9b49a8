#include "ui/window/drop_target.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

#include "ui/background/later.h"

namespace tricklet::ui {

DropTarget::DropTarget(QWidget* window) : QObject(window) {
  window->setAcceptDrops(true);
  window->installEventFilter(this);
}

bool DropTarget::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::DragEnter) return Enter(*static_cast<QDragEnterEvent*>(event));
  if (event->type() == QEvent::DragLeave) {
    emit Left();
    return true;
  }
  if (event->type() == QEvent::Drop) {
    Drop(*static_cast<QDropEvent*>(event));
    return true;
  }
  return QObject::eventFilter(watched, event);
}

bool DropTarget::Enter(QDragEnterEvent& event) {
  if (DroppedRecords(*event.mimeData()).Empty()) return false;
  event.setDropAction(Qt::CopyAction);
  event.accept();
  emit Entered();
  return true;
}

void DropTarget::Drop(QDropEvent& event) {
  const DroppedRecords dropped(*event.mimeData());
  // Never the move that is proposed for one: its source would then delete the file.
  event.setDropAction(Qt::CopyAction);
  event.accept();
  emit Left();
  // Questions come after the drop, so that the program that it came from does not wait for them.
  Later(this, [this, dropped] { emit Dropped(dropped); });
}

}  // namespace tricklet::ui
