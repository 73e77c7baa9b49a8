// The right column's lowest part: the results of the board, and the play records among them.
#pragma once

#include <array>

#include "ui/control/results.h"
#include "ui/style/section.h"

class QComboBox;
class QTableView;
class QToolButton;

namespace tricklet::ui {

class TravellerModel;
class TravellerOrder;

/// Visible only where the library has results.
class TravellerPane : public Section {
  Q_OBJECT

 public:
  /// Asks `results` for records and steps.
  explicit TravellerPane(Results& results, QWidget* parent = nullptr);

  /// Shows the results of the board that `results` was last read for, and its record if one is
  /// looked at. The order that the person has sorted them by stays.
  void Show(const Settings& settings);

  /// `cmdTraveller`: shows or hides `fraTraveller`.
  void Toggle();

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  enum Step { PreviousTrick, Back, Forward, NextTrick, Leave, kSteps };

  void BuildGrid();
  void BuildSteps(QVBoxLayout* column);
  QToolButton* AddStep(Step step, const char* name, const QString& text, const QString& tip,
                       void (Results::*procedure)());
  void Expand(bool expanded);
  void SetLinVisible(bool visible);
  void FillGrid(const Settings& settings);
  void FillNames();
  void MarkRecord();
  void ShowSteps();
  void TravellerResize();
  void SortByCurrentColumn();
  void ChooseRow(int row);

  Results& results_;
  int shownEdition_ = 0;
  bool fourColours_ = false;
  bool marking_ = false;  // the selection is the program's, not the person's
  QToolButton* cmdTraveller;
  QWidget* fraTraveller;
  TravellerModel* rows_;
  TravellerOrder* order_;
  QTableView* flexTraveller;
  QComboBox* cmbLinNames;
  std::array<QToolButton*, kSteps> steps_{};
  ElidedLabel* lblLinPlace_;
};

}  // namespace tricklet::ui
