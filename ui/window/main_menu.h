// Menu bar, toolbar and context menus of the main window.
#pragma once

#include <filesystem>
#include <vector>

#include <QObject>

#include "ui/actions/window_state.h"

class QMainWindow;
class QMenu;
class QToolBar;
class QWidget;

namespace tricklet::ui {

class Actions;

/// Offers the actions where a person looks for them. Their keys work while the bars are hidden too.
class MainMenu : public QObject {
  Q_OBJECT

 public:
  MainMenu(QMainWindow& window, const Actions& actions);

  /// Shows the bars, and how the toolbar is to look.
  void Show(const WindowState& state, bool shown);
  /// The files under "Open recent", the newest first.
  void ShowRecent(const std::vector<std::filesystem::path>& files);

  /// Gives `widget` a context menu of actions, as `kTableContext` and its like name them.
  void OfferAt(QWidget* widget, const char* actions);
  /// Such a menu, for a widget that says itself when and where it is wanted.
  QMenu* ContextMenu(QWidget* widget, const char* actions);

 signals:
  void RecentAsked(const std::filesystem::path& file);

 private:
  QMainWindow& window_;
  const Actions& actions_;
  QToolBar* bar_;
  QMenu* recent_ = nullptr;
  std::vector<std::filesystem::path> files_;
};

}  // namespace tricklet::ui
