#include "ui/panes/command_grid.h"

#include <QPushButton>

#include "ui/commands/commands.h"

namespace tricklet::ui {
namespace {

constexpr int kColumns = 2;

}  // namespace

CommandGrid::CommandGrid(Commands& commands) : commands_(commands) {
  for (int column = 0; column < kColumns; ++column) setColumnStretch(column, 1);
}

QPushButton* CommandGrid::Add(const char* name, const QString& text, const QString& tip,
                              void (Commands::*command)()) {
  auto* button = new QPushButton(text);
  button->setObjectName(QString::fromLatin1(name));
  button->setToolTip(tip);
  connect(button, &QPushButton::clicked, &commands_, command);
  const int place = count();
  addWidget(button, place / kColumns, place % kColumns);
  return button;
}

}  // namespace tricklet::ui
