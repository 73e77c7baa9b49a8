#include "ui/actions/action_grid.h"

#include <QAction>
#include <QPushButton>

namespace tricklet::ui {
namespace {

constexpr int kColumns = 2;

void Follow(QPushButton* button, const QAction* action) {
  button->setText(action->iconText());
  button->setToolTip(action->toolTip());
  button->setEnabled(action->isEnabled());
}

}  // namespace

QPushButton* MakeActionButton(const char* name, QAction* action) {
  auto* button = new QPushButton;
  button->setObjectName(QString::fromLatin1(name));
  Follow(button, action);
  QObject::connect(action, &QAction::changed, button, [button, action] { Follow(button, action); });
  QObject::connect(button, &QPushButton::clicked, action, &QAction::trigger);
  return button;
}

ActionGrid::ActionGrid() {
  for (int column = 0; column < kColumns; ++column) setColumnStretch(column, 1);
}

QPushButton* ActionGrid::Add(const char* name, QAction* action) {
  QPushButton* button = MakeActionButton(name, action);
  const int place = count();
  addWidget(button, place / kColumns, place % kColumns);
  return button;
}

}  // namespace tricklet::ui
