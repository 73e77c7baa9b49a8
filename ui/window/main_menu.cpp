#include "ui/window/main_menu.h"

#include <array>

#include <QAction>
#include <QActionGroup>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include "ui/commands/commands.h"
#include "ui/control/edit_control.h"
#include "ui/control/play_control.h"
#include "ui/control/results.h"
#include "ui/style/qt_text.h"
#include "ui/updates/updates.h"

namespace tricklet::ui {

MainMenu::MainMenu(QMainWindow& window, Commands& commands, Results& results,
                   const Updates& updates)
    : QObject(&window), window_(window), commands_(commands), results_(results), updates_(updates) {
  BuildFile();
  BuildLibrary();
  BuildBoard();
  BuildHands();
  BuildPlay();
  BuildAnalysis();
  BuildResults();
  BuildView();
  BuildOptionsAndHelp();
  window_.addActions(actions_);
}

QMenu* MainMenu::AddMenu(const QString& title) {
  return window_.menuBar()->addMenu(title);
}

QAction* MainMenu::Add(QMenu* menu, const char* name, const QString& text,
                       const QList<QKeySequence>& keys) {
  QAction* action = menu->addAction(text);
  action->setObjectName(QString::fromLatin1(name));
  action->setShortcuts(keys);
  action->setMenuRole(QAction::NoRole);
  actions_ += action;
  return action;
}

QAction* MainMenu::Add(QMenu* menu, const char* name, const QString& text,
                       const QList<QKeySequence>& keys, Command command) {
  QAction* action = Add(menu, name, text, keys);
  connect(action, &QAction::triggered, &commands_, command);
  return action;
}

QAction* MainMenu::AddToggle(QMenu* menu, const char* name, const QString& text,
                             const QKeySequence& key, bool Settings::*setting) {
  QAction* action = Add(menu, name, text, {key});
  action->setCheckable(true);
  connect(action, &QAction::triggered, &commands_, [this, setting] { commands_.Toggle(setting); });
  return action;
}

void MainMenu::BuildFile() {
  QMenu* menu = AddMenu(tr("&File"));
  Add(menu, "mnuImport", tr("&Import hand records..."), {QKeySequence::Open}, &Commands::Import);
  Add(menu, "mnuImportLin", tr("Import &LIN records..."), {QKeySequence(tr("Ctrl+Shift+I"))},
      &Commands::ImportLin);
  Add(menu, "mnuPasteLin", tr("&Paste LIN records"), {QKeySequence(tr("Ctrl+Shift+V"))},
      &Commands::PasteLin);
  Add(menu, "mnuExport", tr("&Export hand records..."), {QKeySequence(tr("Ctrl+E"))},
      &Commands::Export);
  menu->addSeparator();
  save_ = Add(menu, "mnuSave", tr("&Save board"), {QKeySequence::Save}, &Commands::Save);
  menu->addSeparator();
  QAction* exit = Add(menu, "mnuExit", tr("E&xit"), {QKeySequence(tr("Ctrl+Q"))}, &Commands::Exit);
  exit->setMenuRole(QAction::QuitRole);
}

void MainMenu::BuildLibrary() {
  QMenu* menu = AddMenu(tr("&Library"));
  Add(menu, "mnuRenameLibrary", tr("&Rename library..."), {QKeySequence(tr("F2"))},
      &Commands::RenameLibrary);
  leaveBoard_ << Add(menu, "mnuNewLibrary", tr("&New library..."), {QKeySequence::New},
                     &Commands::NewLibrary);
  Add(menu, "mnuCopyLibrary", tr("&Copy library..."), {QKeySequence(tr("Shift+F2"))},
      &Commands::CopyLibrary);
  Add(menu, "mnuDeleteLibrary", tr("&Delete library..."), {QKeySequence(tr("Ctrl+F2"))},
      &Commands::DeleteLibrary);
  menu->addSeparator();
  Add(menu, "mnuGenerate", tr("&Generate deals..."), {QKeySequence(tr("Ctrl+Shift+G"))},
      &Commands::Generate);
  menu->addSeparator();
  Add(menu, "mnuRefresh", tr("Re&fresh"), {QKeySequence(tr("F5"))}, &Commands::RefreshLibraries);
  menu->addSeparator();
  leaveBoard_ << Add(menu, "mnuImportLibrary", tr("&Import library..."), {QKeySequence(tr("F7"))},
                     &Commands::ImportLibrary);
  Add(menu, "mnuImportLibraries", tr("I&mport all libraries..."), {QKeySequence(tr("Shift+F7"))},
      &Commands::ImportLibraries);
  Add(menu, "mnuExportLibrary", tr("&Export library..."), {QKeySequence(tr("F8"))},
      &Commands::ExportLibrary);
  Add(menu, "mnuExportLibraries", tr("Export &all libraries..."), {QKeySequence(tr("Shift+F8"))},
      &Commands::ExportLibraries);
  menu->addSeparator();
  leaveBoard_ << Add(menu, "mnuMoveLibraries", tr("Mo&ve libraries..."),
                     {QKeySequence(tr("Shift+F6"))}, &Commands::MoveLibraries);
}

void MainMenu::BuildBoard() {
  QMenu* menu = AddMenu(tr("&Board"));
  leaveBoard_ << Add(menu, "mnuNext", tr("&Next board"),
                     {QKeySequence(tr("PgDown")), QKeySequence(tr("Ctrl+Right"))},
                     &Commands::NextBoard)
              << Add(menu, "mnuPrevious", tr("Pre&vious board"),
                     {QKeySequence(tr("PgUp")), QKeySequence(tr("Ctrl+Left"))},
                     &Commands::PreviousBoard)
              << Add(menu, "mnuFirst", tr("&First board"), {QKeySequence(tr("Ctrl+Home"))},
                     &Commands::FirstBoard)
              << Add(menu, "mnuLast", tr("&Last board"), {QKeySequence(tr("Ctrl+End"))},
                     &Commands::LastBoard)
              << Add(menu, "mnuGoTo", tr("&Go to board..."), {QKeySequence(tr("Ctrl+G"))},
                     &Commands::GoToBoard);
  menu->addSeparator();
  Add(menu, "mnuCopyHand", tr("&Copy board"), {QKeySequence::Copy}, &Commands::CopyHand);
  pasteHand_ =
      Add(menu, "mnuPasteHand", tr("&Paste board"), {QKeySequence::Paste}, &Commands::PasteHand);
}

void MainMenu::BuildHands() {
  QMenu* menu = AddMenu(tr("Ha&nds"));
  edit_ = Add(menu, "mnuEdit", tr("&Edit"), {QKeySequence(tr("Ctrl+H"))}, &Commands::EditOrStop);
  swap_ =
      Add(menu, "mnuSwap", tr("Rotate/&Swap..."), {QKeySequence(tr("Ctrl+R"))}, &Commands::Swap);
  menu->addSeparator();
  randomFill_ = Add(menu, "mnuRandom", tr("&Random fill"), {QKeySequence(tr("Ctrl+Shift+R"))},
                    &Commands::RandomFill);
  fillFourth_ = Add(menu, "mnuFillFourth", tr("&Fourth hand"), {QKeySequence(tr("Ctrl+4"))},
                    &Commands::FillFourth);
  undoFill_ = Add(menu, "mnuUndoFill", tr("&Undo fill"), {QKeySequence(tr("Ctrl+Shift+Z"))},
                  &Commands::UndoFill);
  menu->addSeparator();
  clearBoard_ = Add(menu, "mnuClearBoard", tr("&Clear board"), {QKeySequence(tr("Ctrl+Shift+Del"))},
                    &Commands::ClearHands);
  undoClear_ = Add(menu, "mnuUndoClear", tr("Un&do clear"), {QKeySequence(tr("Ctrl+Shift+U"))},
                   &Commands::UndoClear);
}

void MainMenu::BuildPlay() {
  QMenu* menu = AddMenu(tr("&Play"));
  bidding_ =
      Add(menu, "mnuBidding", tr("&Bidding..."), {QKeySequence(tr("Ctrl+B"))}, &Commands::Bidding);
  menu->addSeparator();
  play_ = Add(menu, "mnuPlay", tr("&Play"), {QKeySequence(tr("Ctrl+P"))}, &Commands::PlayOrStop);
  undoCard_ = Add(menu, "mnuUndoCard", tr("&Undo card"), {QKeySequence::Undo}, &Commands::UndoCard);
  gatherTrick_ = Add(menu, "mnuGatherTrick", tr("&Gather trick"), {QKeySequence(tr("Ctrl+Return"))},
                     &Commands::QuitTrick);
  claim_ = Add(menu, "mnuClaim", tr("&Claim"), {QKeySequence(tr("Ctrl+L"))}, &Commands::Claim);
}

void MainMenu::BuildAnalysis() {
  QMenu* menu = AddMenu(tr("&Analysis"));
  Add(menu, "mnuDDS", tr("Analyse &board"), {QKeySequence(tr("Ctrl+D"))}, &Commands::AnalyseBoard);
  Add(menu, "mnuAnalyse", tr("&Analyse all boards"), {QKeySequence(tr("Ctrl+Shift+D"))},
      &Commands::AnalyseLibrary);
  menu->addSeparator();
  Add(menu, "mnuBSOL", tr("&Online double-dummy page"), {QKeySequence(tr("Ctrl+Shift+O"))},
      &Commands::OnlineSolver);
}

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

void MainMenu::BuildView() {
  QMenu* menu = AddMenu(tr("&View"));
  statistics_ = AddToggle(menu, "mnuStatistics", tr("&Statistics"), QKeySequence(tr("Ctrl+T")),
                          &Settings::showStats);
  makeable_ = AddToggle(menu, "mnuMakeable", tr("&Makeable contracts"), QKeySequence(tr("Ctrl+M")),
                        &Settings::showMakeable);
  bestCards_ = AddToggle(menu, "mnuBestCards", tr("&Best cards in play"),
                         QKeySequence(tr("Ctrl+K")), &Settings::showBestCards);
  cardFaces_ = AddToggle(menu, "mnuCardFaces", tr("Card &faces"), QKeySequence(tr("Ctrl+F")),
                         &Settings::cardsFaces);
  menu->addSeparator();
  BuildColours(menu);
  menu->addSeparator();
  connect(Add(menu, "mnuPresentation", tr("&Presentation"), {QKeySequence(tr("F11"))}),
          &QAction::triggered, this, &MainMenu::PresentationAsked);
  QAction* panes = Add(menu, "mnuPresentationPanes", tr("&Auction and panes in a presentation"),
                       {QKeySequence(tr("Shift+F11"))});
  panes->setCheckable(true);
  connect(panes, &QAction::toggled, this, &MainMenu::PresentationPanesAsked);
}

void MainMenu::BuildColours(QMenu* view) {
  QMenu* menu = view->addMenu(tr("&Colour scheme"));
  colours_ = new QActionGroup(this);
  const std::array<QAction*, 3> schemes{
      Add(menu, "mnuColoursSystem", tr("As the &system"), {QKeySequence(tr("Ctrl+Alt+1"))}),
      Add(menu, "mnuColoursLight", tr("&Light"), {QKeySequence(tr("Ctrl+Alt+2"))}),
      Add(menu, "mnuColoursDark", tr("&Dark"), {QKeySequence(tr("Ctrl+Alt+3"))})};
  int index = 0;
  for (QAction* action : schemes) {
    action->setCheckable(true);
    colours_->addAction(action);
    const auto scheme = static_cast<ColourScheme>(index++);
    connect(action, &QAction::triggered, &commands_,
            [this, scheme] { commands_.SetColourScheme(scheme); });
  }
}

void MainMenu::BuildOptionsAndHelp() {
  QMenu* options = AddMenu(tr("&Options"));
  Add(options, "mnuOptions", tr("&Options..."), {QKeySequence(tr("Ctrl+,"))}, &Commands::Options);
  QMenu* help = AddMenu(tr("&Help"));
  Add(help, "mnuHelp", tr("&Help"), {QKeySequence(tr("F1"))}, &Commands::Help);
  Add(help, "mnuNewFeatures", tr("&New Features"), {QKeySequence(tr("Shift+F1"))},
      &Commands::NewFeatures);
  help->addSeparator();
  if (!updates_.LeftOut()) BuildUpdates(help);
  Add(help, "mnuAbout", tr("&About Tricklet"), {QKeySequence(tr("Ctrl+F1"))}, &Commands::About);
}

void MainMenu::BuildUpdates(QMenu* help) {
  help->setToolTipsVisible(true);  // one of these says why it is disabled
  newVersion_ = Add(help, "mnuNewVersion", tr("&Version"), {QKeySequence(tr("Ctrl+Alt+U"))},
                    &Commands::NewVersion);
  checkForUpdates_ = Add(help, "mnuCheckForUpdates", tr("&Check for updates..."),
                         {QKeySequence(tr("Ctrl+Shift+F1"))}, &Commands::CheckForUpdates);
  help->addSeparator();
}

void MainMenu::ShowUpdates() {
  if (updates_.LeftOut()) return;
  const QString obstacle = updates_.Obstacle();
  checkForUpdates_->setEnabled(enabled_ && obstacle.isEmpty());
  checkForUpdates_->setToolTip(obstacle);
  checkForUpdates_->setStatusTip(obstacle);
  const UpdateAnswer* newer = updates_.Newer();
  newVersion_->setVisible(newer != nullptr);
  if (newer == nullptr) return;
  newVersion_->setText(tr("&Version %1 is there...").arg(ToQt(newer->shownVersion)));
  newVersion_->setStatusTip(ToQt(newer->page));
}

void MainMenu::Show(const Session& session, const PlayControl& play, const EditControl& edit) {
  for (QAction* action : actions_) action->setEnabled(enabled_);
  const bool editable = enabled_ && !play.Unfinished();
  save_->setEnabled(enabled_ && session.board.handChanged);
  pasteHand_->setEnabled(editable && !session.copyLibrary.empty());
  bidding_->setEnabled(editable && !edit.Editing());
  for (QAction* action : leaveBoard_) action->setEnabled(enabled_ && !edit.Editing());
  ShowPlay(play);
  ShowEdit(play, edit);
  ShowResults();
  ShowUpdates();
  statistics_->setChecked(session.settings.showStats);
  makeable_->setChecked(session.settings.showMakeable);
  bestCards_->setChecked(session.settings.showBestCards);
  cardFaces_->setChecked(session.settings.cardsFaces);
  colours_->actions().at(IndexOf(session.settings.colourScheme))->setChecked(true);
}

void MainMenu::ShowPlay(const PlayControl& play) {
  const bool on = play.Play().PlayMode();
  play_->setText(on ? tr("Stop &play") : tr("&Play"));
  play_->setEnabled(enabled_ && (on || play.CanStart()));
  undoCard_->setEnabled(enabled_ && play.Play().UndoEnabled());
  claim_->setText(on ? ToQt(play.Play().ClaimCaption()) : tr("&Claim"));
  claim_->setEnabled(enabled_ && play.Play().ClaimEnabled());
  gatherTrick_->setEnabled(enabled_ && play.TrickComplete());
}

void MainMenu::ShowEdit(const PlayControl& play, const EditControl& edit) {
  const bool editable = enabled_ && !play.Unfinished();
  edit_->setText(edit.Editing() ? tr("Stop &editing") : tr("&Edit"));
  swap_->setEnabled(editable);
  randomFill_->setEnabled(editable && edit.CanFill());
  fillFourth_->setEnabled(editable && edit.CanFillFourth());
  undoFill_->setEnabled(editable && edit.CanUndoFill());
  clearBoard_->setEnabled(editable);
  undoClear_->setEnabled(editable && edit.CanUndoClear());
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

void MainMenu::SetEnabled(bool enabled) {
  enabled_ = enabled;
  for (QAction* action : actions_) action->setEnabled(enabled);
}

}  // namespace tricklet::ui
