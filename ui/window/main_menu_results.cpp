// The menu of the traveller and of its play records.
#include <QAction>
#include <QKeySequence>
#include <QMenu>

#include "ui/control/results.h"
#include "ui/window/main_menu.h"

namespace tricklet::ui {

void MainMenu::BuildResults() {
  QMenu* menu = AddMenu(tr("&Results"));
  traveller_ = Add(menu, "mnuTraveller", tr("&Traveller"), {QKeySequence(tr("Ctrl+J"))});
  connect(traveller_, &QAction::triggered, this, &MainMenu::TravellerAsked);
  menu->addSeparator();
  const auto add = [&](const char* name, const QString& text, const QString& key,
                       void (Results::*procedure)()) {
    QAction* action = Add(menu, name, text, {QKeySequence(key)});
    connect(action, &QAction::triggered, &results_, procedure);
    return action;
  };
  linForward_ = add("mnuLinForward", tr("&Next card"), tr("Alt+Right"), &Results::Forward);
  linBack_ = add("mnuLinBack", tr("&Card back"), tr("Alt+Left"), &Results::Back);
  linNextTrick_ =
      add("mnuLinNextTrick", tr("Next tric&k"), tr("Alt+Shift+Right"), &Results::NextTrick);
  linPreviousTrick_ =
      add("mnuLinPreviousTrick", tr("Trick &back"), tr("Alt+Shift+Left"), &Results::PreviousTrick);
  linLeave_ = add("mnuLinLeave", tr("&Put the record away"), tr("Ctrl+Shift+J"), &Results::Leave);
}

void MainMenu::ShowResults() {
  const Replay* record = results_.Record();
  const bool forward = record != nullptr && record->ForwardEnabled();
  const bool back = record != nullptr && record->BackEnabled();
  traveller_->setEnabled(enabled_ && results_.HasLinData());
  for (QAction* action : {linForward_, linNextTrick_}) action->setEnabled(enabled_ && forward);
  for (QAction* action : {linBack_, linPreviousTrick_}) action->setEnabled(enabled_ && back);
  linLeave_->setEnabled(enabled_ && record != nullptr);
}

}  // namespace tricklet::ui
