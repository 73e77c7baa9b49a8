#include "ui/actions/actions.h"

#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include "ui/actions/menu_table.h"
#include "ui/commands/commands.h"
#include "ui/control/results.h"
#include "ui/style/icons.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// Titles of the submenus, by their names.
QString SubmenuTitle(const QString& name) {
  if (name == QStringLiteral("mnuRecent")) return Actions::tr("Open &recent");
  if (name == QStringLiteral("mnuColours")) return Actions::tr("&Colour scheme");
  if (name == QStringLiteral("mnuTools")) return Actions::tr("&Toolbar");
  return Actions::tr("C&olumns");
}

QList<QKeySequence> KeysOf(const ActionEntry& entry) {
  QList<QKeySequence> keys;
  for (const QString& key : QString::fromLatin1(entry.keys).split(u' ', Qt::SkipEmptyParts)) {
    keys += QKeySequence(key);
  }
  return keys;
}

/// "Write the board to its library (Ctrl+S)".
QString TipOf(const ActionEntry& entry) {
  const QList<QKeySequence> keys = KeysOf(entry);
  if (keys.isEmpty()) return Actions::tr(entry.tip);
  return QStringLiteral("%1 (%2)").arg(Actions::tr(entry.tip),
                                       keys.first().toString(QKeySequence::NativeText));
}

}  // namespace

Actions::Actions(QWidget& window, Commands& commands, Results& results)
    : QObject(&window), commands_(commands), results_(results) {
  for (const ActionEntry& entry : ActionTable()) {
    QAction* action = Make(entry);
    Connect(action, entry);
    actions_.insert(action->objectName(), action);
    window.addAction(action);
  }
}

QAction* Actions::Make(const ActionEntry& entry) {
  auto* action = new QAction(tr(entry.text), this);
  action->setObjectName(QString::fromLatin1(entry.name));
  action->setShortcuts(KeysOf(entry));
  action->setMenuRole(action->objectName() == QStringLiteral("mnuExit") ? QAction::QuitRole
                                                                        : QAction::NoRole);
  action->setToolTip(TipOf(entry));
  action->setWhatsThis(tr(entry.tip));  // a status tip would cover what the last command has said
  action->setCheckable(entry.checked != nullptr);
  if (*entry.icon != '\0') action->setIcon(DrawnIcon(QString::fromLatin1(entry.icon)));
  if (*entry.shortText != '\0') action->setIconText(tr(entry.shortText));
  return action;
}

/// Carries out what the row of an action names.
struct Actions::Runner {
  Actions* actions;

  void operator()(std::monostate /*nothing*/) const {}
  void operator()(void (Commands::*command)()) const { (actions->commands_.*command)(); }
  void operator()(void (Results::*step)()) const { (actions->results_.*step)(); }
  void operator()(bool Settings::*setting) const { actions->commands_.Toggle(setting); }
  void operator()(ColourScheme scheme) const { actions->commands_.SetColourScheme(scheme); }
  void operator()(ToolbarStyle style) const { actions->commands_.SetToolbarStyle(style); }
  void operator()(WindowAsk what) const { emit actions->Asked(what); }
};

void Actions::Connect(QAction* action, const ActionEntry& entry) {
  connect(action, &QAction::triggered, this,
          [this, run = entry.run] { std::visit(Runner{this}, run); });
}

QAction* Actions::Of(const char* name) const {
  QAction* action = actions_.value(QString::fromLatin1(name));
  Q_ASSERT(action != nullptr);
  return action;
}

void Actions::Fill(QMenu* menu, const char* names) const {
  QList<QMenu*> open{menu};
  for (const QString& name : QString::fromLatin1(names).split(u' ', Qt::SkipEmptyParts)) {
    if (name == QStringLiteral("|")) {
      open.last()->addSeparator();
    } else if (name == QStringLiteral("<")) {
      open.removeLast();
    } else if (name.endsWith(u'>')) {
      QMenu* below = open.last()->addMenu(SubmenuTitle(name.chopped(1)));
      below->setObjectName(name.chopped(1));
      open += below;
    } else {
      open.last()->addAction(Of(name.toLatin1().constData()));
    }
  }
}

void Actions::Fill(QToolBar* bar) const {
  for (const QString& tool : QString::fromLatin1(kToolbar).split(u' ')) {
    if (tool == QStringLiteral("|")) {
      bar->addSeparator();
      continue;
    }
    const QStringList names = tool.split(u'=');
    QAction* action = Of(names.last().toLatin1().constData());
    bar->addAction(action);
    auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action));
    button->setObjectName(names.first());
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoRaise(true);
    if (names.first() == QStringLiteral("tbrHands")) {
      auto* menu = new QMenu(button);
      menu->setToolTipsVisible(true);
      Fill(menu, kHandsMenu);
      button->setMenu(menu);
      button->setPopupMode(QToolButton::MenuButtonPopup);
    }
  }
}

void Actions::Show(const WindowState& state) {
  for (const ActionEntry& entry : ActionTable()) ShowOne(Of(entry.name), entry, state);
  ShowUpdates(state);
}

void Actions::ShowOne(QAction* action, const ActionEntry& entry, const WindowState& state) {
  action->setEnabled(!state.working && (entry.enabled == nullptr || entry.enabled(state)));
  if (entry.checked != nullptr) action->setChecked(entry.checked(state));
  if (entry.caption != nullptr) {
    const QString shown = action->iconText();  // follows the text otherwise
    action->setText(entry.caption(state));
    action->setIconText(shown);
  }
}

/// The look for newer versions may be left out, have an obstacle, or have found one.
void Actions::ShowUpdates(const WindowState& state) {
  QAction* check = Of("mnuCheckForUpdates");
  check->setVisible(!state.updatesLeftOut);
  if (!state.updateObstacle.empty()) {
    check->setToolTip(ToQt(state.updateObstacle));
  }
  Of("mnuNewVersion")->setVisible(!state.newerVersion.empty());
}

}  // namespace tricklet::ui
