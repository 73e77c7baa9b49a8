// The right column's lower part: what can be made double dummy.
#pragma once

#include "library/session.h"
#include "ui/style/section.h"

class QLabel;
class QTableWidget;
class QToolButton;

namespace tricklet::ui {

/// Visible only when it is switched on and the board has a valid table.
class MakeablePane : public Section {
  Q_OBJECT

 public:
  explicit MakeablePane(QWidget* parent = nullptr);

  void Show(const Session& session);

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void StyleHeads();
  void ShowHeads(const Settings& settings);
  void Expand(bool expanded);

  QToolButton* cmdMake;
  QTableWidget* lvwMake;
  QLabel* lblPar;
};

}  // namespace tricklet::ui
