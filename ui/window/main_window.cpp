#include "ui/window/main_window.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>

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
#include "ui/panes/board_list.h"
#include "ui/panes/edit_pane.h"
#include "ui/panes/library_pane.h"
#include "ui/panes/notes_pane.h"
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

void MainWindow::Say(const QString& text) {
  status_->Say(text);
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
  panes_.traveller->Show(session_, state_.hidden);
  review_->Show(state_);
  ShowState();
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
