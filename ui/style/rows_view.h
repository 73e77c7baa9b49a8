// A table whose rows are chosen whole, all of them one line high.
#pragma once

#include <QTableView>

namespace tricklet::ui {

/// What the tables of the dialogs have in common. It follows the font.
class RowsView : public QTableView {
  Q_OBJECT

 public:
  /// Gives each column the width of what the model has in it now.
  virtual void FitColumns() = 0;

 protected:
  explicit RowsView(QWidget* parent);

  /// Room for so many rows of so many characters.
  QSize SizeOf(int rows, int characters) const;

  void changeEvent(QEvent* event) override;

 private:
  void SetRowHeight();
};

}  // namespace tricklet::ui
