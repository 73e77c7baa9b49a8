// The gap beside a column, by which it is widened.
#pragma once

#include <QWidget>

namespace tricklet::ui {

/// Dragged to the side it asks for that change of width; a double click asks for the width that the
/// window's size gives.
class ColumnHandle : public QWidget {
  Q_OBJECT

 public:
  /// In pixels.
  static constexpr int kWidth = 10;

  explicit ColumnHandle(const QString& name, QWidget* parent);

 signals:
  /// By so many pixels to the right since the last `Dragged` of this drag.
  void Dragged(int pixels);
  void Released();
  void Reset();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int at_ = 0;  // of the mouse on the screen
  bool dragging_ = false;
  bool under_ = false;  // the mouse is over it
};

}  // namespace tricklet::ui
