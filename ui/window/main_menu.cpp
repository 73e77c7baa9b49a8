#include "ui/window/main_menu.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "core/text.h"
#include "ui/actions/actions.h"
#include "ui/actions/menu_table.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

constexpr int kIconSize = 22;
constexpr double kTextSize = 0.85;  // of the window's font

Qt::ToolButtonStyle ButtonStyle(ToolbarStyle style) {
  switch (style) {
    case ToolbarStyle::TextBesideIcon:
      return Qt::ToolButtonTextBesideIcon;
    case ToolbarStyle::IconAlone:
      return Qt::ToolButtonIconOnly;
    default:
      return Qt::ToolButtonTextUnderIcon;
  }
}

}  // namespace

MainMenu::MainMenu(QMainWindow& window, const Actions& actions)
    : QObject(&window), window_(window), actions_(actions), bar_(new QToolBar(&window)) {
  for (const MenuEntry& entry : MenuTable()) {
    QMenu* menu = window.menuBar()->addMenu(Actions::tr(entry.title));
    menu->setToolTipsVisible(true);
    actions.Fill(menu, entry.actions);
    if (recent_ == nullptr) recent_ = menu->findChild<QMenu*>(QStringLiteral("mnuRecent"));
  }
  bar_->setObjectName(QStringLiteral("tbrMain"));
  bar_->setWindowTitle(tr("Toolbar"));
  bar_->setMovable(false);
  bar_->setContextMenuPolicy(Qt::PreventContextMenu);  // it would offer to take the bar away
  bar_->setIconSize({kIconSize, kIconSize});
  QFont font = bar_->font();
  font.setPointSizeF(font.pointSizeF() * kTextSize);
  bar_->setFont(font);
  actions.Fill(bar_);
  window.addToolBar(bar_);
  auto* rest = bar_->findChild<QWidget*>(QStringLiteral("qt_toolbar_ext_button"));
  if (rest != nullptr) rest->setAccessibleName(tr("More of the toolbar"));
}

void MainMenu::Show(const WindowState& state, bool shown) {
  bar_->setToolButtonStyle(ButtonStyle(state.toolbarStyle));
  bar_->setVisible(shown);
  window_.menuBar()->setVisible(shown);
  window_.menuBar()->setEnabled(!state.working);
  recent_->setEnabled(!state.working && !recent_->isEmpty());
}

void MainMenu::ShowRecent(const std::vector<std::filesystem::path>& files) {
  if (files == files_) return;
  files_ = files;
  recent_->clear();
  int number = 0;
  for (const std::filesystem::path& file : files) {
    QString name = ToQt(ShownPath(file.filename()));
    name.replace(u'&', QStringLiteral("&&"));
    QAction* action = recent_->addAction(QStringLiteral("&%1 %2").arg(++number % 10).arg(name));
    action->setToolTip(ToQt(ShownPath(file)));
    action->setStatusTip(action->toolTip());
    connect(action, &QAction::triggered, this, [this, file] { emit RecentAsked(file); });
  }
}

QMenu* MainMenu::ContextMenu(QWidget* widget, const char* actions) {
  auto* menu = new QMenu(widget);
  actions_.Fill(menu, actions);
  return menu;
}

void MainMenu::OfferAt(QWidget* widget, const char* actions) {
  QMenu* menu = ContextMenu(widget, actions);
  widget->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(widget, &QWidget::customContextMenuRequested, menu,
          [menu, widget](const QPoint& at) { menu->popup(widget->mapToGlobal(at)); });
}

}  // namespace tricklet::ui
