// The table of an import, to be worked by mouse and keys.
#pragma once

#include <QTableView>

namespace tricklet::ui {

class ImportRowsModel;

/// Shows the rows of an `ImportRowsModel`. Rows are chosen whole and several at once; the blank
/// leaves out the boards of all that are chosen, or takes them back.
class ImportRowsView : public QTableView {
  Q_OBJECT

 public:
  ImportRowsView(ImportRowsModel* rows, bool fourColours, QWidget* parent);

  /// Gives each column the width of what the model has in it now; the last one gets the rest.
  void FitColumns();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void SetSizes();
  QSize SizeOf(int rows, int characters) const;

  ImportRowsModel* rows_;
};

}  // namespace tricklet::ui
