// A window onto which hand records can be dragged.
#pragma once

#include <QObject>

#include "ui/window/dropped_records.h"

class QDragEnterEvent;
class QDropEvent;
class QWidget;

namespace tricklet::ui {

/// Watches the drags over `window`; only what can be imported is taken, and always as a copy.
class DropTarget : public QObject {
  Q_OBJECT

 public:
  explicit DropTarget(QWidget* window);

 signals:
  /// Records are over the window.
  void Entered();
  /// They are no longer: they have gone or been dropped.
  void Left();
  /// They have been dropped, and the program that they came from does not wait any more.
  void Dropped(const DroppedRecords& records);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Enter(QDragEnterEvent& event);
  void Drop(QDropEvent& event);
};

}  // namespace tricklet::ui
