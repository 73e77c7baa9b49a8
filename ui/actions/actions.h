// The window's actions, made of their table.
#pragma once

#include <QHash>
#include <QObject>

#include "ui/actions/action_table.h"

class QAction;
class QMenu;
class QToolBar;
class QWidget;

namespace tricklet::ui {

class Commands;
class Results;

/// One QAction for each row, which every menu, button and key shares.
class Actions : public QObject {
  Q_OBJECT

 public:
  /// The keys work wherever the focus is in `window`.
  Actions(QWidget& window, Commands& commands, Results& results);

  /// The action of that name, which has to be one of the table's.
  QAction* Of(const char* name) const;

  /// Puts actions into a menu: names, "|" and submenus as `MenuEntry::actions` has them. A submenu
  /// is named as it stands there.
  void Fill(QMenu* menu, const char* names) const;
  /// Puts the actions of `kToolbar` into a toolbar.
  void Fill(QToolBar* bar) const;

  /// Sets texts, marks and what is enabled.
  void Show(const WindowState& state);

 signals:
  /// The window is to carry this out.
  void Asked(WindowAsk what);

 private:
  struct Runner;

  QAction* Make(const ActionEntry& entry);
  void Connect(QAction* action, const ActionEntry& entry);
  static void ShowOne(QAction* action, const ActionEntry& entry, const WindowState& state);
  void ShowUpdates(const WindowState& state);

  Commands& commands_;
  Results& results_;
  QHash<QString, QAction*> actions_;
};

}  // namespace tricklet::ui
