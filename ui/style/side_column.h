// The columns of panes on either side of the table.
#pragma once

#include <QScrollArea>

namespace tricklet::ui {

/// Panes one below the other; scrolls when they need more height than there is.
class SideColumn : public QScrollArea {
  Q_OBJECT

 public:
  SideColumn(const QString& name, const QList<QWidget*>& panes, QWidget* parent = nullptr);

  /// The width in pixels of a column that is to be `heights` of the window's font wide.
  int WidthFor(double heights) const;
};

/// Sets whether the room of a widget is kept while it is hidden, so that nothing else moves.
void KeepRoom(QWidget* widget, bool keep);

}  // namespace tricklet::ui
