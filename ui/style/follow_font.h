// Fonts that keep their proportion to another one.
#pragma once

#include <QObject>

class QWidget;

namespace tricklet::ui {

/// Keeps a widget's font in proportion to its parent's. A font that was set once would not grow
/// with the window.
class FollowFont : public QObject {
  Q_OBJECT

 public:
  /// Belongs to `widget`, which must have a parent and keep it. `factor` is of the parent's size.
  FollowFont(QWidget* widget, double factor, bool bold = false);

  void SetFactor(double factor);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Apply();

  QWidget* widget_;
  double factor_;
  bool bold_;
};

}  // namespace tricklet::ui
