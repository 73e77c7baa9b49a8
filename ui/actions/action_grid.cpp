#include "ui/actions/action_grid.h"

#include <QAction>
#include <QPushButton>

namespace tricklet::ui {
namespace {

constexpr int kColumns = 2;

void ShowAction(QAbstractButton* button, const QAction* action) {
  button->setToolTip(action->toolTip());
  button->setEnabled(action->isEnabled());
}

}  // namespace

void Follow(QAbstractButton* button, QAction* action) {
  ShowAction(button, action);
  QObject::connect(action, &QAction::changed, button,
                   [button, action] { ShowAction(button, action); });
  QObject::connect(button, &QAbstractButton::clicked, action, &QAction::trigger);
}

QPushButton* MakeActionButton(const char* name, QAction* action, ButtonText text) {
  auto* button = new QPushButton;
  button->setObjectName(QString::fromLatin1(name));
  const auto showText = [button, action, text] {
    const bool isShort = text == ButtonText::Short;
    button->setText(isShort ? action->iconText() : action->text().remove(u'&'));
  };
  showText();
  QObject::connect(action, &QAction::changed, button, showText);
  Follow(button, action);
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
