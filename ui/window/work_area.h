// What the main window has between its menu and its status line.
#pragma once

#include <QWidget>

#include "ui/window/column_handle.h"

namespace tricklet::ui {

class ProgressFrame;
class SideColumn;
class TableView;

/// The table between two columns of panes, with the progress of long work below. Columns that
/// nobody has given a width follow from the window's size: the right one takes the width that the
/// table, limited by its height, could not use. The columns' font grows with the window.
class WorkArea : public QWidget {
  Q_OBJECT

 public:
  WorkArea(SideColumn* left, TableView* table, SideColumn* right, ProgressFrame* progress,
           QWidget* parent = nullptr);

  /// Room round the panes and between them, in pixels.
  static constexpr int kMargin = ColumnHandle::kWidth;
  /// Shows the margin round the panes, or leaves it out for a table that fills the screen and is
  /// looked at from afar: the columns' font is larger then.
  void ShowMargin(bool shown);

  /// The widths of the columns, in tenths of the window's font height; 0 as the window's size
  /// gives.
  void SetWidths(int left, int right);
  QSize minimumSizeHint() const override;
  /// Gives the columns the widths that their panes need in a font in which they have been shown
  /// afresh.
  void Remeasure();
  /// Asks, by `WidthChosen`, for a column a little wider or narrower.
  void Widen(bool right, bool wider);

 signals:
  /// The person has chosen the width of the left or the right column, in the unit of `SetWidths`.
  void WidthChosen(bool right, int tenths);
  /// The font of the columns is another one: what was laid out by it has to be shown afresh.
  void FontChanged();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ConnectHandle(ColumnHandle* handle, bool right);
  void Arrange();
  void SetFonts();
  int WidthOf(bool right) const;
  QSize Room() const;
  int ToTenths(int pixels) const;

  SideColumn* left_;
  TableView* table_;
  SideColumn* right_;
  ColumnHandle* leftHandle_;
  ColumnHandle* rightHandle_;
  int leftWidth_ = 0;  // as `SetWidths` has them
  int rightWidth_ = 0;
  bool fromAfar_ = false;
};

/// How much larger than the window's font the font of the side columns is in a work area of
/// `height` pixels, where the window's font is `fontHeight` pixels high: 1 to `kMostGrowth`, in
/// steps. `fromAfar`: at least a 26th of the height, as for a class.
double ColumnFontFactor(int height, int fontHeight, bool fromAfar);
inline constexpr double kMostGrowth = 1.75;

}  // namespace tricklet::ui
