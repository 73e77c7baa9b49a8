// What the main window has between its menu and its status line.
#pragma once

#include <QWidget>

namespace tricklet::ui {

class ProgressFrame;
class SideColumn;
class TableView;

/// The table between two columns of panes, with the progress of long work below. The right column
/// takes the width that the table, limited by its height, could not use.
class WorkArea : public QWidget {
  Q_OBJECT

 public:
  WorkArea(SideColumn* left, TableView* table, SideColumn* right, ProgressFrame* progress,
           QWidget* parent = nullptr);

  /// Room round the panes and between them, in pixels.
  static constexpr int kMargin = 10;
  /// Shows the margin round the panes, or leaves it out for a table that fills the screen.
  void ShowMargin(bool shown);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  SideColumn* left_;
  SideColumn* right_;
};

}  // namespace tricklet::ui
