// The keyboard's focus, shown around a list.
#pragma once

#include <QWidget>

class QAbstractItemView;

namespace tricklet::ui {

/// A frame inside the edge of a list that shows that keys go to it. The style frames the current
/// cell alone, which cannot be seen while there is none or while it is selected anyway.
class FocusRing : public QWidget {
  Q_OBJECT

 public:
  /// Belongs to `list`. It is shown when the focus came by a key, until the focus goes.
  explicit FocusRing(QAbstractItemView* list);

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tricklet::ui
