// Buttons for commands, side by side.
#pragma once

#include <QGridLayout>

class QPushButton;

namespace tricklet::ui {

class Commands;

/// Two columns of equal width, filled row by row.
class CommandGrid : public QGridLayout {
  Q_OBJECT

 public:
  explicit CommandGrid(Commands& commands);

  /// `name` is the control's name; `tip` says what the button does and its key.
  QPushButton* Add(const char* name, const QString& text, const QString& tip,
                   void (Commands::*command)());

 private:
  Commands& commands_;
};

}  // namespace tricklet::ui
