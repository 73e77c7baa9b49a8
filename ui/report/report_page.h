// One half of a session's report: its entrants or its boards, and what is known of the chosen one.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QWidget>

#include "review/session_report.h"

class QLabel;

namespace tricklet::ui {

class ParScatter;
class ReportView;

/// A result that the person wants to look at.
struct ReportPlace {
  int boardNumber = 0;
  int row = -1;  ///< of the board's traveller; -1 for the board itself
};

class ReportPage : public QWidget {
  Q_OBJECT

 public:
  enum class Of { Entrants, Boards };

  ReportPage(Of what, bool fourColours, QWidget* parent);

  /// What was chosen stays so where it still exists.
  void Show(const std::shared_ptr<const SessionReport>& report);

  /// The chosen entrant or board, as an index of the report's; -1 for none.
  int Chosen() const;
  void Choose(int index);

  /// What the person has chosen below, or the board above; nothing where there is none.
  std::optional<ReportPlace> Place() const;

  QList<QWidget*> TabOrder() const;

 signals:
  /// `Place` may be another one.
  void PlaceChosen();
  /// The person wants to go there.
  void PlaceAsked(const ReportPlace& place);

 private:
  QWidget* MakeDetails(bool fourColours);
  void ShowDetails();
  void ShowEntrant();
  void ShowBoard();
  void GoTo(std::optional<ReportPlace> place);
  std::optional<ReportPlace> TableAt(int detail) const;
  const std::vector<std::size_t>& Tables() const;

  Of what_;
  std::vector<int> points_;  // rows that the points of the picture stand for
  std::shared_ptr<const SessionReport> report_;
  ReportView* grdReport;
  ReportView* grdTables = nullptr;
  QLabel* lblChosen = nullptr;
  ParScatter* picScatter = nullptr;
};

}  // namespace tricklet::ui
