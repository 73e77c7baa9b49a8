#include "ui/window/main_window.h"

#include <optional>

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>

#include "formats/results/call_remarks.h"
#include "library/recent_files.h"
#include "library/unsaved_changes.h"
#include "ui/actions/actions.h"
#include "ui/actions/panes_shown.h"
#include "ui/background/background_tables.h"
#include "ui/background/best_cards_finder.h"
#include "ui/background/board_summaries.h"
#include "ui/background/later.h"
#include "ui/background/program_player.h"
#include "ui/commands/commands.h"
#include "ui/control/draft_clock.h"
#include "ui/control/edit_control.h"
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
#include "ui/panes/statistics_pane.h"
#include "ui/panes/traveller_pane.h"
#include "ui/style/progress_frame.h"
#include "ui/style/qt_text.h"
#include "ui/style/section.h"
#include "ui/style/side_column.h"
#include "ui/table/table_view.h"
#include "ui/updates/updates.h"
#include "ui/window/copied_diagram.h"
#include "ui/window/main_menu.h"
#include "ui/window/placing.h"
#include "ui/window/review_display.h"
#include "ui/window/state_of.h"
#include "ui/window/status_line.h"
#include "ui/window/work_area.h"

namespace tricklet::ui {
namespace {

constexpr std::string_view kPlaceSection = "Window";
constexpr std::string_view kPlaceKey = "Geometry";

}  // namespace

MainWindow::MainWindow(Session& session, Updates& updates)
    : session_(session),
      updates_(updates),
      play_(new PlayControl(session, this)),
      edit_(std::make_unique<EditControl>(session, *play_)),
      tables_(new BackgroundTables(session, this)),
      best_(new BestCardsFinder(session, this)),
      program_(new ProgramPlayer(session, this)),
      results_(new Results(session, this)),
      summaries_(new BoardSummaries(session, this)),
      commands_(new Commands(session, *play_, *edit_, updates, this)),
      watch_(new DiskWatch(
          session, [this] { return LeaveToWatch(); }, this)),
      drafts_(new DraftClock(session, this)),
      actions_(new Actions(*this, *commands_, *results_)),
      menu_(new MainMenu(*this, *actions_)),
      panes_(session, *commands_, *actions_, *results_, *summaries_),
      review_(new ReviewDisplay(session, *play_, *results_, panes_, this)),
      status_(new StatusLine(this)) {
  setStatusBar(status_);
  setObjectName(QStringLiteral("frmMain"));
  setCentralWidget(panes_.Lay(this));
  Connect();
  const QList<QWidget*> order = panes_.TabOrder();
  for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order.at(i - 1), order.at(i));
  panes_.table->setFocus();
  Display();
}

MainWindow::~MainWindow() {
  panes_.edit->ForgetTyping();  // a line of text loses the focus when it is destroyed
}

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

void MainWindow::Say(const QString& text) {
  status_->Say(text);
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

/// What is dropped beside boards may go into a library of its own, which is asked then.
QString MainWindow::DropText() const {
  const QString library = ToQt(session_.ShownLibrary());
  return session_.library.boardCount == 0
             ? tr("Drop to import into %1").arg(library)
             : tr("Drop to import into %1 or a new library").arg(library);
}

/// Nothing under the eyes of a class, and nothing that would put away what is being typed.
DiskWatch::Leave MainWindow::LeaveToWatch() const {
  using Leave = DiskWatch::Leave;
  const bool busy = commands_->Running() || session_.batchRunning || panes_.progress->IsWorking() ||
                    QApplication::activeModalWidget() != nullptr ||
                    QApplication::activePopupWidget() != nullptr;
  if (busy || !isVisible() || isMinimized() || state_.presentation ||
      results_->Record() != nullptr || panes_.library->Typing(session_) || panes_.notes->Typing()) {
    return Leave::Nothing;
  }
  if (session_.board.playMode || edit_->Editing()) return Leave::Tell;
  return edit_->CanUndo() ? Leave::List : Leave::Reload;
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
  panes_.traveller->Show(session_);
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

void MainWindow::BeginEditing() {
  Display();
  QWidget* line = panes_.edit->FirstLine();
  (line != nullptr ? line : panes_.table)->setFocus();
}

/// The lower left corner: there it covers neither the auction nor the middle of the table. Where
/// there is nothing below the auction it covers no hand either.
void MainWindow::PlaceBesideAuction(QWidget* dialog) {
  dialog->adjustSize();
  const bool roomBelow = state_.presentation && !state_.presentationPanes;
  PlaceAtLowerEdge(*this, *dialog,
                   roomBelow ? width() - dialog->width() - WorkArea::kMargin : WorkArea::kMargin);
}

/// The lower right corner: there it covers no hand.
void MainWindow::PlaceBesideHands(QWidget* dialog) {
  dialog->adjustSize();
  PlaceAtLowerEdge(*this, *dialog, width() - dialog->width() - WorkArea::kMargin);
}

void MainWindow::OfferDrafts() {
  if (drafts_->OfferDrafts()) Display();
}

void MainWindow::ImportFiles(const std::vector<std::filesystem::path>& files) {
  commands_->ImportFiles(files);
}

void MainWindow::SetWorking(bool working) {
  panes_.left->setEnabled(!working);
  panes_.table->setEnabled(!working);
  setAcceptDrops(!working);
  if (working) {
    ShowState();
  } else {
    Display();  // before anybody is told how the work has ended
    panes_.table->setFocus();
  }
}

void MainWindow::CarryOut(WindowAsk what) {
  switch (what) {
    case WindowAsk::Presentation:
      SetPresentation(!state_.presentation);
      break;
    case WindowAsk::LeavePresentation:
      SetPresentation(false);
      break;
    case WindowAsk::PresentationPanes:
      state_.presentationPanes = !state_.presentationPanes;
      Display();
      break;
    case WindowAsk::Traveller:
      panes_.traveller->Toggle();
      break;
    case WindowAsk::PlayOn:
      PlayOn();
      break;
    case WindowAsk::NextMistake:
      review_->ToNextMistake();
      break;
    case WindowAsk::PreviousMistake:
      review_->ToPreviousMistake();
      break;
    case WindowAsk::FindBoards:
      panes_.library->List()->BeginFind();
      break;
    case WindowAsk::Notes:
      WriteNotes();
      break;
    case WindowAsk::CopyDiagram:
      CopyDiagram();
      break;
    case WindowAsk::HideHands:
      HideAll();
      break;
    case WindowAsk::HideDeclaring:
    case WindowAsk::HideDefenders:
      HideSide(what == WindowAsk::HideDeclaring);
      break;
    case WindowAsk::HideNorth:
    case WindowAsk::HideEast:
    case WindowAsk::HideSouth:
    case WindowAsk::HideWest:
      Hide(static_cast<Seat>(IndexOf(what) - IndexOf(WindowAsk::HideNorth)));
      break;
    case WindowAsk::WidenLeft:
    case WindowAsk::NarrowLeft:
      panes_.area->Widen(false, what == WindowAsk::WidenLeft);
      break;
    case WindowAsk::WidenRight:
    case WindowAsk::NarrowRight:
      panes_.area->Widen(true, what == WindowAsk::WidenRight);
      break;
  }
}

/// From the card of the record that is looked at.
void MainWindow::PlayOn() {
  const Replay* replay = results_->Record();
  if (replay == nullptr) return;
  const auto row = static_cast<std::size_t>(results_->Row());
  const RecordedPlay record = replay->Record();  // which goes when the play begins
  const PerSeat<std::string> players = results_->OfBoard().rows.at(row).players;
  results_->Pause();
  commands_->PlayOn(record, replay->Shown(), players);
}

/// The board whose auction is played where it is not the current one's own.
const Board* MainWindow::PlayedAuction() const {
  const Board& played = play_->Play().Played();
  return &played == &session_.board ? nullptr : &played;
}

/// What is typed anywhere is taken over or stored; false when it still waits for the person.
bool MainWindow::FinishTyping() {
  return panes_.edit->FinishTyping() && panes_.notes->FinishTyping();
}

/// Shows the notes, also where there are none yet, and goes there.
void MainWindow::WriteNotes() {
  state_.writingNotes = true;
  ShowState();
  panes_.notes->BeginTyping();
}

/// What is in sight goes to the clipboard, and no more.
void MainWindow::CopyDiagram() {
  const bool auction = ShownIn(state_).right && session_.settings.showAuction;
  SeenBoard seen = SeenOn(panes_.table->Scene(), auction);
  if (edit_->Editing()) seen.hidden = {};
  QApplication::clipboard()->setMimeData(DiagramForOthers(seen, session_.settings).release());
  status_->Say(tr("The diagram is on the clipboard: as picture, HTML and text"));
}

/// Turns all hands face down, or up again when any is.
void MainWindow::HideAll() {
  const bool down = !state_.AnyHidden();
  for (const Seat seat : kAllSeats) state_.hidden[seat] = down;
  ShowHidden();
}

void MainWindow::Hide(Seat seat) {
  state_.hidden[seat] = !state_.hidden[seat];
  ShowHidden();
}

/// Turns both hands of a side face down, or up again when both are.
void MainWindow::HideSide(bool declaring) {
  if (!state_.declarer) return;
  const bool down = !state_.IsSideHidden(declaring);
  const Seat seat = declaring ? *state_.declarer : SeatAfter(*state_.declarer);
  state_.hidden[seat] = state_.hidden[PartnerOf(seat)] = down;
  ShowHidden();
}

void MainWindow::ShowHidden() {
  panes_.table->SetHidden(state_.hidden);
  review_->Show(state_);
  ShowState();
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

void MainWindow::SetPresentation(bool on) {
  if (state_.presentation == on) return;
  state_.presentation = on;
  panes_.table->SetPresentation(on);
  Display();
  if (on) {
    stateBefore_ = windowState();
    setWindowState(stateBefore_ | Qt::WindowFullScreen);
  } else {
    setWindowState(stateBefore_);
  }
  panes_.table->setFocus();
}

void MainWindow::RestorePlace() {
  const auto stored = session_.store.Read(kPlaceSection, kPlaceKey);
  const bool restored =
      stored && restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(*stored)));
  if (!restored || !(isMaximized() || isFullScreen())) FitOnScreen(*this, restored);
}

void MainWindow::SavePlace() {
  SetPresentation(false);
  session_.store.Write(kPlaceSection, kPlaceKey, saveGeometry().toBase64().toStdString());
  StoreSettings(session_);
}

/// The panes derive colours from their palettes, which follow the window's after this event.
void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
    Later(this, [this] { LookAtDisk(); });
  }
  if (event->type() != QEvent::PaletteChange || centralWidget() == nullptr) return;
  Later(this, [this] { DisplayAgain(); });
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (panes_.progress->IsWorking()) {
    panes_.progress->Cancel();
    event->ignore();
    return;
  }
  if (!FinishTyping() || !play_->Leave() || CheckSaveChanges(session_) == Answer::Cancel) {
    event->ignore();
    return;
  }
  Display();
  event->accept();
}

}  // namespace tricklet::ui
