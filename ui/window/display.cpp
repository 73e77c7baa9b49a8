// How the main window shows the state.
#include <optional>
#include <utility>

#include "formats/results/call_remarks.h"
#include "library/recent_files.h"
#include "ui/actions/actions.h"
#include "ui/actions/panes_shown.h"
#include "ui/background/background_tables.h"
#include "ui/background/best_cards_finder.h"
#include "ui/background/board_summaries.h"
#include "ui/background/program_player.h"
#include "ui/commands/commands.h"
#include "ui/control/draft_clock.h"
#include "ui/control/edit_control.h"
#include "ui/control/play_control.h"
#include "ui/control/results.h"
#include "ui/panes/auction_pane.h"
#include "ui/panes/contract_pane.h"
#include "ui/panes/edit_pane.h"
#include "ui/panes/library_pane.h"
#include "ui/panes/makeable_pane.h"
#include "ui/panes/notes_pane.h"
#include "ui/panes/statistics_pane.h"
#include "ui/panes/traveller_pane.h"
#include "ui/style/progress_frame.h"
#include "ui/style/qt_text.h"
#include "ui/table/table_view.h"
#include "ui/updates/updates.h"
#include "ui/window/main_menu.h"
#include "ui/window/main_window.h"
#include "ui/window/review_display.h"
#include "ui/window/state_of.h"
#include "ui/window/status_line.h"

namespace tricklet::ui {

void MainWindow::Display() {
  play_->StopClockOfEndedPlay();
  edit_->DropStaleEdits();
  results_->ReadTraveller();
  summaries_->Show(results_->File());
  panes_.library->Show(session_);
  panes_.edit->Show(session_, *edit_);
  panes_.statistics->Show(session_);
  panes_.makeable->Show(session_);
  DisplayAuction();
  if (!edit_->Editing()) tables_->ComputeMissing();
  ShowTitle();
  status_->Say(StatusText());
}

/// For what no command has done: what the last one has said stays, unless there is something to
/// save now.
void MainWindow::DisplayAgain() {
  const QString said = status_->Said();
  Display();
  if (!session_.board.handChanged) status_->Say(said);
}

void MainWindow::ShowTitle() {
  const Board& board = session_.board;
  setWindowTitle(tr("%1 - Board %2[*] - Tricklet")
                     .arg(ToQt(session_.ShownLibrary()), QString::number(board.boardNumber)));
  setWindowModified(board.handChanged);
}

/// The deal that a run of the generator has come to, or that was there before an analysis.
void MainWindow::DisplayDeal() {
  if (!state_.dealing) return;
  ShowTitle();
  panes_.library->Show(session_);
  panes_.statistics->Show(session_);
  panes_.table->Show(session_.board, session_.settings, nullptr);
  panes_.table->ShowBestCards({});
}

/// Files of the library that are not the current board's may be others: results, and other boards.
void MainWindow::ShowFolder() {
  results_->ReadTraveller();
  summaries_->Show(results_->File());
  summaries_->LookAtAll();
  DisplayPlay();
}

QString MainWindow::StatusText() const {
  if (QString text = watch_->Text(); !text.isEmpty()) return text;
  const Board& board = session_.board;
  if (board.handChanged && !drafts_->Problem().isEmpty()) {
    return tr("Board %1 has changes that are not saved, and there is no draft of them: %2")
        .arg(QString::number(board.boardNumber), drafts_->Problem());
  }
  if (board.handChanged) {
    return tr("Board %1 has changes that are not saved").arg(board.boardNumber);
  }
  if (session_.library.boardCount > 0) return tr("Ready");
  return tr("The library is empty: drop hand records here, import them, or generate deals");
}

/// The board whose auction is played where it is not the current one's own.
const Board* MainWindow::PlayedAuction() const {
  const Board& played = play_->Play().Played();
  return &played == &session_.board ? nullptr : &played;
}

void MainWindow::DisplayAuction() {
  results_->DropStaleRecord(commands_->Auction() != nullptr || edit_->Editing());
  const Replay* record = results_->Record();
  const Board* played = record == nullptr ? PlayedAuction() : nullptr;
  panes_.auction->Show(
      session_, commands_->Auction(), record != nullptr ? &record->Record().board : played,
      played != nullptr ? RemarksOn(*played, results_->OfBoard()) : results_->Remarks());
  DisplayPlay();
}

/// All that changes when a card is played or taken back.
void MainWindow::DisplayPlay() {
  if (panes_.progress->IsWorking()) return;
  panes_.library->OfferNext(play_->Play().Finished());
  panes_.traveller->Show(session_, state_.hidden);
  panes_.notes->Show(results_->Note());
  GatherState();
  DisplayTable();
  review_->Show(state_);
  ShowState();
  program_->Think(play_->Turn());
}

void MainWindow::GatherState() {
  state_.working = panes_.progress->IsWorking();
  state_ = StateOf(std::move(state_), session_, *commands_, *play_, *edit_, *results_, updates_);
  state_.hasMistakeAfter = review_->HasMistakeAfter();
  state_.hasMistakeBefore = review_->HasMistakeBefore();
}

/// Gathers the state, and sets the actions and what is shown by it.
void MainWindow::ShowState() {
  GatherState();
  actions_->Show(state_);
  const PanesShown shown = ShownIn(state_);
  menu_->Show(state_, shown.bars);
  menu_->ShowRecent(RecentFiles(session_.settings.recentFiles));
  status_->setVisible(shown.bars);
  status_->ShowNewVersion(ToQt(state_.newerVersion));
  panes_.Show(shown, session_.settings);
}

/// The board, its play or its auction; or the play record that is looked at.
void MainWindow::DisplayTable() {
  if (const Replay* record = results_->Record()) {
    DisplayRecord(*record);
    return;
  }
  const AuctionEntry* entry = commands_->Auction();
  panes_.contract->Show(session_, play_->Play());
  if (edit_->Editing()) {
    panes_.table->ShowEdit(session_.board, session_.settings);
    return;
  }
  if (entry != nullptr) {
    DisplayBidding(*entry);
    return;
  }
  if (ShownIn(state_).empty) {
    panes_.table->ShowEmpty();
    return;
  }
  ShowPlayOf(play_->Play().Played(), play_->Play(), play_->Players());
}

/// The hands of `board` as `play` has left them, and what each card leads to.
void MainWindow::ShowPlayOf(const Board& board, const CardPlay& play,
                            const PerSeat<std::string>& names) {
  panes_.table->Show(board, session_.settings, play.PlayMode() ? &play : nullptr, std::nullopt,
                     names);
  best_->Find(play, board);
  panes_.table->ShowBestCards(best_->Tricks());
}

/// Nobody is declarer until the auction has been taken over.
void MainWindow::DisplayBidding(const AuctionEntry& entry) {
  Board undecided = session_.board;
  undecided.contract.clear();
  undecided.contractLevel = 0;
  panes_.table->Show(undecided, session_.settings, nullptr,
                     entry.Over() ? std::nullopt : std::optional(entry.ToCall()));
  panes_.table->ShowBestCards({});
}

void MainWindow::DisplayRecord(const Replay& record) {
  panes_.contract->ShowRecord(record, session_.settings);
  const auto row = static_cast<std::size_t>(results_->Row());
  ShowPlayOf(record.Record().board, record.Play(), results_->OfBoard().rows.at(row).players);
}

/// What a card has cost; without a text, what the line said before goes.
void MainWindow::TellMistake(const QString& text) {
  if (!text.isEmpty()) {
    status_->Say(text);
  } else if (status_->Said() == mistake_) {
    status_->Say(StatusText());
  }
  mistake_ = text;
}

}  // namespace tricklet::ui
