#include "ui/dialogs/option_group.h"

#include <QRadioButton>

namespace tricklet::ui {

QButtonGroup* MakeOptions(const QString& name, const QStringList& texts, QWidget* parent) {
  auto* group = new QButtonGroup(parent);
  group->setObjectName(name);
  int id = 0;
  for (const QString& text : texts) {
    auto* option = new QRadioButton(text, parent);
    option->setObjectName(QStringLiteral("%1_%2").arg(name).arg(id));
    option->setFocusPolicy(Qt::ClickFocus);
    group->addButton(option, id++);
  }
  QObject::connect(group, &QButtonGroup::buttonToggled, group,
                   [](QAbstractButton* option, bool chosen) {
                     option->setFocusPolicy(chosen ? Qt::StrongFocus : Qt::ClickFocus);
                   });
  return group;
}

}  // namespace tricklet::ui
