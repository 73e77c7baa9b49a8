// Small buttons whose sign is drawn.
#pragma once

#include <QToolButton>

namespace tricklet::ui {

/// Draws its text, one of "v", "^", "<", "<<", ">", ">>" and "x", as chevrons or a cross in strokes
/// of the same weight. The text itself stays as it is.
class DrawnButton : public QToolButton {
  Q_OBJECT

 public:
  explicit DrawnButton(const QString& name, QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tricklet::ui
