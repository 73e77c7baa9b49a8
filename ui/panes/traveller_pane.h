// The right column's lowest part: the results of the board, and the play records among them.
#pragma once

#include <optional>

#include "analysis/par.h"
#include "ui/control/results.h"
#include "ui/style/folding_section.h"

class QAction;
class QComboBox;
class QTableView;
class QToolButton;

namespace tricklet::ui {

class Actions;
enum class TravellerColumn;
class TravellerDelegate;
class TravellerModel;
class TravellerOrder;

/// What happened at each table, with par among it.
class TravellerPane : public FoldingSection {
  Q_OBJECT

 public:
  /// Asks `results` for records and steps.
  TravellerPane(Results& results, const Actions& actions, QWidget* parent = nullptr);

  /// Shows the results of the board that `results` was last read for, and its record if one is
  /// looked at. The order that the person has sorted them by stays. A lead from one of the `hidden`
  /// hands is not told.
  void Show(const Session& session, const PerSeat<bool>& hidden);

  /// The row of the traveller at `at`, a place in the pane; -1 where there is none.
  int RowAt(const QPoint& at) const;

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildGrid();
  void BuildSteps(QVBoxLayout* column, const Actions& actions);
  QToolButton* AddStep(const char* name, const QString& text, QAction* action);
  void SetRowHeight(int lines);
  void SetSizes();
  void FillGrid(const Session& session);
  void FillNames();
  void MarkRecord();
  void ShowPlace();
  int WidthOfColumn(TravellerColumn column) const;
  void ShareNames(int width);
  void TravellerResize();
  bool MoveAcross(int key);
  void SortByCurrentColumn();
  void ChooseRow(int row);

  Results& results_;
  int shownEdition_ = 0;
  bool fourColours_ = false;
  std::optional<Par> par_;
  PerSeat<bool> hidden_;
  bool marking_ = false;  // the selection is the program's, not the person's
  TravellerModel* rows_;
  TravellerDelegate* delegate_ = nullptr;
  TravellerOrder* order_;
  QTableView* flexTraveller;
  QComboBox* cmbLinNames;
  QList<QWidget*> steps_;
  ElidedLabel* lblLinPlace_;
  QLabel* lblTables_;
};

}  // namespace tricklet::ui
