// The table of an import, to be worked by mouse and keys.
#pragma once

#include "ui/style/rows_view.h"

namespace tricklet::ui {

class ImportRowsModel;

/// Shows the rows of an `ImportRowsModel`. Rows are chosen whole and several at once; the blank
/// leaves out the boards of all that are chosen, or takes them back.
class ImportRowsView : public RowsView {
  Q_OBJECT

 public:
  ImportRowsView(ImportRowsModel* rows, bool fourColours, QWidget* parent);

  /// The last column gets what is left.
  void FitColumns() override;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  ImportRowsModel* rows_;
};

}  // namespace tricklet::ui
