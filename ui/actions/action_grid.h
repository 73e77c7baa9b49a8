// Buttons of actions, side by side.
#pragma once

#include <QGridLayout>

class QAction;
class QPushButton;

namespace tricklet::ui {

/// A button that shows an action: its short text, its tip with the key, and whether it can be
/// carried out. `name` is the control's name.
QPushButton* MakeActionButton(const char* name, QAction* action);

/// Two columns of equal width, filled row by row.
class ActionGrid : public QGridLayout {
  Q_OBJECT

 public:
  ActionGrid();

  QPushButton* Add(const char* name, QAction* action);
};

}  // namespace tricklet::ui
