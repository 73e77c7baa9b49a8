// A table of a report, to be worked by mouse and keys.
#pragma once

#include "ui/report/report_model.h"
#include "ui/style/rows_view.h"

namespace tricklet::ui {

/// Rows are chosen one at a time; a click on a heading sorts by its column, a third one puts the
/// rows back into their own order.
class ReportView : public RowsView {
  Q_OBJECT

 public:
  ReportView(const QString& name, bool fourColours, QWidget* parent);

  /// Takes the place of what is shown; the row that was chosen stays so where it still exists.
  void Show(ReportGrid grid);

  /// The chosen row of the grid; -1 for none.
  int Chosen() const;
  void Choose(int row);  ///< -1 for none

  void FitColumns() override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  /// Another row has been chosen.
  void RowChosen();
  /// Enter or a double click on the chosen row.
  void Entered();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void WidenNames();

  ReportModel* rows_;
  ReportOrder* order_;
};

}  // namespace tricklet::ui
