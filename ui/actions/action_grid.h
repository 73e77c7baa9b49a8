// Buttons of actions, side by side.
#pragma once

#include <cstdint>

#include <QGridLayout>

class QAbstractButton;
class QAction;
class QPushButton;

namespace tricklet::ui {

/// A button that shows an action: its text, its tip with the key, and whether it can be carried
/// out. `name` is the control's name.
enum class ButtonText : std::uint8_t {
  Short,    ///< as on the toolbar
  OfMenus,  ///< which may depend on the state: "Claim by South"
};
QPushButton* MakeActionButton(const char* name, QAction* action,
                              ButtonText text = ButtonText::Short);

/// Has a button give the action by a click, and shows the action's tip and whether it can be
/// carried out.
void Follow(QAbstractButton* button, QAction* action);

/// Two columns of equal width, filled row by row.
class ActionGrid : public QGridLayout {
  Q_OBJECT

 public:
  ActionGrid();

  QPushButton* Add(const char* name, QAction* action);
};

}  // namespace tricklet::ui
