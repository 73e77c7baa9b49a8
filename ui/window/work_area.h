// What the main window has between its menu and its status line.
#pragma once

#include <QWidget>

namespace tricklet::ui {

class ProgressFrame;
class SideColumn;
class TableView;

/// The table between two columns of panes, with the progress of long work below. The right column
/// is wider where the table could make nothing of the room but air.
class WorkArea : public QWidget {
  Q_OBJECT

 public:
  WorkArea(SideColumn* left, TableView* table, SideColumn* right, ProgressFrame* progress,
           QWidget* parent = nullptr);

  /// Round the panes, and between them.
  static constexpr int kMargin = 10;
  /// Without the margin round them for a table that fills the screen.
  void ShowMargin(bool shown);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  SideColumn* left_;
  SideColumn* right_;
};

}  // namespace tricklet::ui
