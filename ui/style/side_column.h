// The columns of panes on either side of the table.
#pragma once

#include <QScrollArea>

namespace tricklet::ui {

/// Panes one below the other; scrolls when they need more height than there is.
class SideColumn : public QScrollArea {
  Q_OBJECT

 public:
  SideColumn(const QString& name, const QList<QWidget*>& panes, QWidget* parent = nullptr);

  /// The width in pixels of a column that is to be `heights` of its font wide.
  int WidthFor(double heights) const;
  /// The width in pixels at which no pane is cut, even beside the scroll bar. It only grows while
  /// the font stays, so that the column does not move to and fro as panes come and go.
  int LeastWidth();
  /// Lets `LeastWidth` begin anew, as the panes have been shown in another font.
  void ForgetWidth() { widest_ = 0; }
  /// Makes the panes' font larger than the column's own; false when it was so already.
  bool SetFontFactor(double factor);

 private:
  int widest_ = 0;  // what the panes have needed in this font
};

/// Sets whether the room of a widget is kept while it is hidden, so that nothing else moves.
void KeepRoom(QWidget* widget, bool keep);

}  // namespace tricklet::ui
