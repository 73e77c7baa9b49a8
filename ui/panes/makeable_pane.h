// The right column's lower part: what can be made double dummy.
#pragma once

#include "library/session.h"
#include "ui/style/folding_section.h"

class QTableWidget;

namespace tricklet::ui {

/// The tricks or contracts of all declarers in a table, and par beside the title or below it.
class MakeablePane : public FoldingSection {
  Q_OBJECT

 public:
  explicit MakeablePane(QWidget* parent = nullptr);

  /// Shows the board's table. Without a valid one nothing is shown, but the pane is as large as
  /// with one.
  void Show(const Session& session);

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

  void SetFromAfar(bool afar) override;

 protected:
  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void StyleHeads();
  void ShowHeads(const Settings& settings);
  void ShowTable(const Session& session);
  void SetSizes();
  void PlacePar();
  int WidthInColumn() const;

  QTableWidget* lvwMake;
  ElidedLabel* lblPar;
  FollowFont* tableFont_;
  FollowFont* parFont_;
  bool afar_ = false;
  bool parBelow_ = false;
};

}  // namespace tricklet::ui
