// What is connected to what in the main window.
#include <QMenu>

#include "ui/actions/actions.h"
#include "ui/actions/menu_table.h"
#include "ui/background/background_tables.h"
#include "ui/background/best_cards_finder.h"
#include "ui/background/board_summaries.h"
#include "ui/background/later.h"
#include "ui/background/program_player.h"
#include "ui/commands/commands.h"
#include "ui/control/draft_clock.h"
#include "ui/control/play_control.h"
#include "ui/control/results.h"
#include "ui/dialogs/frmBidding.h"
#include "ui/dialogs/frmSwap.h"
#include "ui/panes/auction_pane.h"
#include "ui/panes/board_list.h"
#include "ui/panes/contract_pane.h"
#include "ui/panes/edit_pane.h"
#include "ui/panes/library_pane.h"
#include "ui/panes/makeable_pane.h"
#include "ui/panes/notes_pane.h"
#include "ui/panes/review_pane.h"
#include "ui/panes/traveller_pane.h"
#include "ui/panes/trick_pane.h"
#include "ui/style/folding_section.h"
#include "ui/style/progress_frame.h"
#include "ui/style/section.h"
#include "ui/table/table_view.h"
#include "ui/updates/updates.h"
#include "ui/window/drop_target.h"
#include "ui/window/main_menu.h"
#include "ui/window/main_window.h"
#include "ui/window/review_display.h"
#include "ui/window/status_line.h"
#include "ui/window/work_area.h"

namespace tricklet::ui {

void MainWindow::Connect() {
  connect(commands_, &Commands::Done, this, &MainWindow::Display);
  connect(commands_, &Commands::Said, status_, &StatusLine::Say);
  connect(commands_, &Commands::Waiting, panes_.progress, &ProgressFrame::SetWaiting);
  connect(panes_.library, &LibraryPane::LibraryChosen, commands_, &Commands::SelectLibrary);
  connect(panes_.library, &LibraryPane::LibraryNamed, commands_, &Commands::CreateLibrary);
  connect(panes_.library, &LibraryPane::BoardChosen, commands_, &Commands::SelectBoard);
  connect(panes_.library, &LibraryPane::HighestChosen, commands_, &Commands::SetMaxBoard);
  connect(panes_.library, &LibraryPane::StepAsked, commands_, &Commands::StepBoard);
  connect(panes_.library, &LibraryPane::Left, panes_.table, qOverload<>(&QWidget::setFocus));
  connect(commands_, &Commands::NewLibraryAsked, panes_.library, &LibraryPane::BeginNewLibrary);
  connect(actions_, &Actions::Asked, this, &MainWindow::CarryOut);
  menu_->OfferAt(panes_.table, kTableContext);
  QMenu* ofBoard = menu_->ContextMenu(panes_.library, kBoardListContext);
  connect(panes_.library->List(), &BoardList::SearchAsked, commands_, &Commands::FindBoardsBy);
  connect(panes_.library->List(), &BoardList::MenuAsked, ofBoard,
          [ofBoard](const QPoint& at) { ofBoard->popup(at); });
  menu_->OfferAt(panes_.traveller, kTravellerContext);
  connect(menu_, &MainMenu::RecentAsked, this,
          [this](const std::filesystem::path& file) { ImportFiles({file}); });
  auto* drops = new DropTarget(this);
  connect(drops, &DropTarget::Entered, this, [this] { status_->Say(DropText()); });
  connect(drops, &DropTarget::Left, this, [this] { status_->Say(StatusText()); });
  connect(drops, &DropTarget::Dropped, this, [this](const DroppedRecords& dropped) {
    ImportFiles(dropped.files);
    if (!dropped.text.isEmpty()) commands_->ImportText(dropped.text);
  });
  connect(commands_, &Commands::TableAsked, tables_, &BackgroundTables::ComputeAsked);
  connect(tables_, &BackgroundTables::Changed, this, &MainWindow::DisplayAgain);
  connect(tables_, &BackgroundTables::Said, status_, &StatusLine::Say);
  connect(watch_, &DiskWatch::FolderChanged, this, &MainWindow::ShowFolder);
  connect(watch_, &DiskWatch::Looked, summaries_, &BoardSummaries::LookAtSeen);
  connect(watch_, &DiskWatch::Changed, this, &MainWindow::Display);
  connect(watch_, &DiskWatch::Said, status_, &StatusLine::Say);
  connect(drafts_, &DraftClock::ProblemChanged, this, [this] { status_->Say(StatusText()); });
  connect(&updates_, &Updates::Settled, this, &MainWindow::ShowState);
  connect(panes_.progress, &ProgressFrame::Begun, this, [this] { SetWorking(true); });
  connect(panes_.progress, &ProgressFrame::Ended, this, [this] { SetWorking(false); });
  connect(commands_, &Commands::Dealing, this, [this](bool dealing) { state_.dealing = dealing; });
  connect(panes_.progress, &ProgressFrame::Drawn, this, &MainWindow::DisplayDeal);

  ConnectPlay();
  ConnectEdit();
  ConnectResults();
  ConnectColumns();
}

void MainWindow::ConnectEdit() {
  commands_->SetFinishTyping([this] { return FinishTyping(); });
  commands_->SetGiveUpTyping([this] { panes_.edit->GiveUpTyping(); });
  commands_->SetLinRecord(
      [this] { return LinPlayRecord(results_->OfBoard(), session_.board, results_->Row()); });
  commands_->SetFaceDown([this] { return state_.hidden; });
  connect(commands_, &Commands::EditStarted, this, &MainWindow::BeginEditing);
  connect(commands_, &Commands::SwapOpened, this, &MainWindow::PlaceBesideHands);
  connect(commands_, &Commands::HandsChanged, this, &MainWindow::Display);
  connect(panes_.table, &TableView::MoveAsked, commands_, &Commands::MoveCard);
  connect(panes_.table, &TableView::Refused, status_, &StatusLine::Say);
  connect(panes_.table, &TableView::OpenAsked, commands_, &Commands::Open);
  connect(panes_.table, &TableView::GenerateAsked, commands_, &Commands::Generate);
}

void MainWindow::ConnectPlay() {
  connect(commands_, &Commands::AuctionOpened, this, &MainWindow::PlaceBesideAuction);
  connect(commands_, &Commands::AuctionChanged, this, &MainWindow::DisplayAuction);
  connect(commands_, &Commands::PlayStarted, panes_.table, qOverload<>(&QWidget::setFocus));
  connect(panes_.contract, &ContractPane::Left, panes_.table, qOverload<>(&QWidget::setFocus));
  connect(play_, &PlayControl::Changed, this, &MainWindow::DisplayPlay);
  connect(best_, &BestCardsFinder::Changed, this, &MainWindow::DisplayPlay);
  connect(program_, &ProgramPlayer::Found, commands_, &Commands::PlayProgram);
  connect(panes_.table, &TableView::TrickAsked, commands_, &Commands::QuitTrick);
  connect(panes_.tricks, &TrickPane::StopAsked, this,
          [this] { results_->Record() != nullptr ? results_->Leave() : commands_->PlayOrStop(); });
  connect(panes_.table, &TableView::HideAsked, this, &MainWindow::Hide);
  connect(review_, &ReviewDisplay::Changed, this, &MainWindow::DisplayPlay);
  connect(review_, &ReviewDisplay::Told, this, &MainWindow::TellMistake);
  connect(panes_.notes, &NotesPane::Stored, this, [this] {
    results_->ReadTraveller();
    DisplayPlay();
  });
  connect(panes_.notes, &NotesPane::Left, this, [this](bool empty) {
    panes_.table->setFocus();
    if (!empty) return;
    state_.writingNotes = false;
    ShowState();
  });
}

/// What is folded away and how wide the columns are outlasts the program.
void MainWindow::ConnectColumns() {
  const auto keep = [this](FoldingSection* pane, bool Settings::*setting) {
    connect(pane, &FoldingSection::Folded, this, [this, setting](bool unfolded) {
      session_.settings.*setting = unfolded;
      SaveSetting(session_, setting);
      Display();
    });
  };
  keep(panes_.auction, &Settings::showAuction);
  keep(panes_.makeable, &Settings::showMakeTable);
  keep(panes_.traveller, &Settings::showTraveller);
  keep(panes_.review, &Settings::showReview);
  connect(panes_.area, &WorkArea::WidthChosen, this, [this](bool right, int tenths) {
    int Settings::*setting = right ? &Settings::rightWidth : &Settings::leftWidth;
    session_.settings.*setting = tenths;
    SaveSetting(session_, setting);
    Display();
  });
  connect(panes_.area, &WorkArea::FontChanged, this, [this] {
    Later(this, [this] {
      DisplayAgain();
      panes_.area->Remeasure();
    });
  });
}

/// While a play record is looked at, cards that are clicked or typed are meant for it.
void MainWindow::ConnectResults() {
  connect(results_, &Results::Changed, this, &MainWindow::DisplayAuction);
  connect(commands_, &Commands::RecordAsked, results_, &Results::ShowRecord);
  connect(panes_.table, &TableView::CardAsked, this, [this](Card card) {
    results_->Record() != nullptr ? results_->PlayCard(card) : commands_->PlayCard(card);
  });
  connect(panes_.table, &TableView::OnlyCardAsked, this, [this] {
    results_->Record() != nullptr ? results_->Forward() : commands_->PlayOnlyCard();
  });
}

}  // namespace tricklet::ui
