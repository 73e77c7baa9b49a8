#include "ui/window/main_window.h"

#include <optional>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMenu>
#include <QScrollArea>
#include <QStatusBar>

#include "library/library_choice.h"
#include "library/recent_files.h"
#include "library/unsaved_changes.h"
#include "ui/actions/actions.h"
#include "ui/actions/menu_table.h"
#include "ui/actions/panes_shown.h"
#include "ui/background/background_tables.h"
#include "ui/background/best_cards_finder.h"
#include "ui/background/board_summaries.h"
#include "ui/background/later.h"
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
#include "ui/panes/statistics_pane.h"
#include "ui/panes/traveller_pane.h"
#include "ui/panes/trick_pane.h"
#include "ui/style/folding_section.h"
#include "ui/style/progress_frame.h"
#include "ui/style/qt_text.h"
#include "ui/style/section.h"
#include "ui/style/side_column.h"
#include "ui/table/table_view.h"
#include "ui/updates/updates.h"
#include "ui/window/dropped_records.h"
#include "ui/window/main_menu.h"
#include "ui/window/placing.h"
#include "ui/window/state_of.h"
#include "ui/window/work_area.h"

namespace tricklet::ui {
namespace {

/// Below it not even scrolling helps.
constexpr QSize kLeastWindow(320, 240);

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
      results_(new Results(session, this)),
      summaries_(new BoardSummaries(session, this)),
      commands_(new Commands(session, *play_, *edit_, updates, this)),
      watch_(new DiskWatch(
          session, [this] { return LeaveToWatch(); }, this)),
      drafts_(new DraftClock(session, this)),
      actions_(new Actions(*this, *commands_, *results_)),
      menu_(new MainMenu(*this, *actions_)),
      library_(new LibraryPane(session, *summaries_)),
      tricks_(new TrickPane),
      editPane_(new EditPane(*commands_, *actions_)),
      statistics_(new StatisticsPane),
      table_(new TableView),
      auction_(new AuctionPane),
      contract_(new ContractPane(*commands_)),
      makeable_(new MakeablePane),
      traveller_(new TravellerPane(*results_)),
      progress_(new ProgressFrame) {
  setObjectName(QStringLiteral("frmMain"));
  setAcceptDrops(true);
  LayOut();
  BuildStatusLine();
  Connect();
  SetTabOrder();
  table_->setFocus();
  Display();
}

MainWindow::~MainWindow() {
  editPane_->ForgetTyping();  // a line of text loses the focus when it is destroyed
}

void MainWindow::LayOut() {
  left_ = new SideColumn(QStringLiteral("colLeft"), {library_, tricks_, editPane_, statistics_});
  right_ = new SideColumn(QStringLiteral("colRight"), {auction_, contract_, makeable_, traveller_});
  table_->setObjectName(QStringLiteral("picTable"));
  table_->setAccessibleName(tr("Table"));
  table_->setFocusPolicy(Qt::StrongFocus);
  area_ = new WorkArea(left_, table_, right_, progress_);
  // A window that is too small for the work area scrolls it as a whole.
  auto* scroll = new QScrollArea(this);
  scroll->setObjectName(QStringLiteral("scrWorkArea"));
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidgetResizable(true);
  scroll->setMinimumSize(kLeastWindow);
  scroll->setWidget(area_);
  setCentralWidget(scroll);
}

void MainWindow::BuildStatusLine() {
  status_ = new ElidedLabel(this);
  status_->setObjectName(QStringLiteral("lblStatus"));
  MakeQuiet(status_);
  newVersion_ = new QLabel(this);
  newVersion_->setObjectName(QStringLiteral("lblNewVersion"));
  newVersion_->setTextFormat(Qt::PlainText);
  auto* hint = new QLabel(tr("F1 help · F11 presentation"), this);
  MakeQuiet(hint);
  statusBar()->setSizeGripEnabled(false);
  statusBar()->setContentsMargins(8, 0, 8, 4);
  StyleStatusLine();
  statusBar()->addWidget(status_, 1);
  statusBar()->addPermanentWidget(newVersion_);
  statusBar()->addPermanentWidget(hint);
  ShowNewVersion();
}

/// No frames round its texts, as Windows has them. The texts keep the colours that they had when the
/// sheet was set, so it is set again when they change.
void MainWindow::StyleStatusLine() {
  statusBar()->setStyleSheet(QString());
  statusBar()->setStyleSheet(QStringLiteral("QStatusBar::item { border: none; }"));
}

void MainWindow::ShowNewVersion() {
  const UpdateAnswer* newer = updates_.Newer();
  newVersion_->setVisible(newer != nullptr);
  if (newer != nullptr) {
    newVersion_->setText(
        tr("Version %1 is there: see the Help menu").arg(ToQt(newer->shownVersion)));
  }
}

void MainWindow::Connect() {
  connect(commands_, &Commands::Done, this, &MainWindow::Display);
  connect(commands_, &Commands::Said, status_, &QLabel::setText);
  connect(commands_, &Commands::Waiting, progress_, &ProgressFrame::SetWaiting);
  connect(library_, &LibraryPane::LibraryChosen, commands_, &Commands::SelectLibrary);
  connect(library_, &LibraryPane::LibraryNamed, commands_, &Commands::CreateLibrary);
  connect(library_, &LibraryPane::BoardChosen, commands_, &Commands::SelectBoard);
  connect(library_, &LibraryPane::HighestChosen, commands_, &Commands::SetMaxBoard);
  connect(library_, &LibraryPane::StepAsked, commands_, &Commands::StepBoard);
  connect(library_, &LibraryPane::Left, table_, qOverload<>(&QWidget::setFocus));
  connect(commands_, &Commands::NewLibraryAsked, library_, &LibraryPane::BeginNewLibrary);
  connect(actions_, &Actions::Asked, this, &MainWindow::CarryOut);
  menu_->OfferAt(table_, kTableContext);
  QMenu* ofBoard = menu_->ContextMenu(library_, kBoardListContext);
  connect(library_->List(), &BoardList::MenuAsked, ofBoard,
          [ofBoard](const QPoint& at) { ofBoard->popup(at); });
  menu_->OfferAt(traveller_, kTravellerContext);
  connect(menu_, &MainMenu::RecentAsked, this,
          [this](const std::filesystem::path& file) { ImportFiles({file}); });
  connect(commands_, &Commands::TableAsked, tables_, &BackgroundTables::ComputeAsked);
  connect(tables_, &BackgroundTables::Changed, this, &MainWindow::Display);
  connect(tables_, &BackgroundTables::Said, status_, &QLabel::setText);
  connect(watch_, &DiskWatch::FolderChanged, this, &MainWindow::ShowFolder);
  connect(watch_, &DiskWatch::Looked, summaries_, &BoardSummaries::LookAtSeen);
  connect(watch_, &DiskWatch::Changed, this, &MainWindow::Display);
  connect(watch_, &DiskWatch::Said, status_, &QLabel::setText);
  connect(drafts_, &DraftClock::ProblemChanged, this, [this] { status_->setText(StatusText()); });
  connect(&updates_, &Updates::Settled, this, [this] {
    ShowNewVersion();
    ShowState();
  });
  connect(progress_, &ProgressFrame::Begun, this, [this] { SetWorking(true); });
  connect(progress_, &ProgressFrame::Ended, this, [this] { SetWorking(false); });
  connect(commands_, &Commands::Dealing, this, [this](bool dealing) { state_.dealing = dealing; });
  connect(progress_, &ProgressFrame::Drawn, this, &MainWindow::DisplayDeal);

  ConnectPlay();
  ConnectEdit();
  ConnectResults();
  ConnectColumns();
}

void MainWindow::ConnectEdit() {
  commands_->SetFinishTyping([this] { return editPane_->FinishTyping(); });
  commands_->SetLinRecord(
      [this] { return LinPlayRecord(results_->OfBoard(), session_.board, results_->Row()); });
  connect(commands_, &Commands::EditStarted, this, &MainWindow::BeginEditing);
  connect(commands_, &Commands::SwapOpened, this, &MainWindow::PlaceBesideHands);
  connect(commands_, &Commands::HandsChanged, this, &MainWindow::Display);
  connect(table_, &TableView::MoveAsked, commands_, &Commands::MoveCard);
  connect(table_, &TableView::Refused, status_, &QLabel::setText);
  connect(table_, &TableView::OpenAsked, commands_, &Commands::Import);
  connect(table_, &TableView::GenerateAsked, commands_, &Commands::Generate);
}

void MainWindow::ConnectPlay() {
  connect(commands_, &Commands::AuctionOpened, this, &MainWindow::PlaceBesideAuction);
  connect(commands_, &Commands::AuctionChanged, this, &MainWindow::DisplayAuction);
  connect(commands_, &Commands::PlayStarted, table_, qOverload<>(&QWidget::setFocus));
  connect(play_, &PlayControl::Changed, this, &MainWindow::DisplayPlay);
  connect(best_, &BestCardsFinder::Changed, this, &MainWindow::DisplayPlay);
  connect(table_, &TableView::TrickAsked, commands_, &Commands::QuitTrick);
  connect(tricks_, &TrickPane::StopAsked, this,
          [this] { results_->Record() != nullptr ? results_->Leave() : commands_->PlayOrStop(); });
  connect(table_, &TableView::HideAsked, this, &MainWindow::Hide);
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
  keep(auction_, &Settings::showAuction);
  keep(makeable_, &Settings::showMakeTable);
  keep(traveller_, &Settings::showTraveller);
  connect(area_, &WorkArea::WidthChosen, this, [this](bool right, int tenths) {
    int Settings::*setting = right ? &Settings::rightWidth : &Settings::leftWidth;
    session_.settings.*setting = tenths;
    SaveSetting(session_, setting);
    Display();
  });
  connect(area_, &WorkArea::FontChanged, this, [this] { Later(this, [this] { Display(); }); });
}

/// While a play record is looked at, cards that are clicked or typed are meant for it.
void MainWindow::ConnectResults() {
  connect(results_, &Results::Changed, this, &MainWindow::DisplayAuction);
  connect(table_, &TableView::CardAsked, this, [this](Card card) {
    results_->Record() != nullptr ? results_->PlayCard(card) : commands_->PlayCard(card);
  });
  connect(table_, &TableView::OnlyCardAsked, this, [this] {
    results_->Record() != nullptr ? results_->Forward() : commands_->PlayOnlyCard();
  });
}

void MainWindow::SetTabOrder() {
  const QList<QWidget*> order = library_->TabOrder() + tricks_->TabOrder() + editPane_->TabOrder() +
                                table_->TabOrder() + auction_->TabOrder() + contract_->TabOrder() +
                                makeable_->TabOrder() + traveller_->TabOrder();
  for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order.at(i - 1), order.at(i));
}

void MainWindow::Display() {
  play_->StopClockOfEndedPlay();
  edit_->DropStaleEdits();
  results_->ReadTraveller();
  summaries_->Show(results_->File());
  library_->Show(session_);
  editPane_->Show(session_, *edit_);
  statistics_->Show(session_);
  makeable_->Show(session_);
  DisplayAuction();
  if (!edit_->Editing()) tables_->ComputeMissing();
  ShowTitle();
  status_->setText(StatusText());
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
  library_->Show(session_);
  statistics_->Show(session_);
  table_->Show(session_.board, session_.settings, nullptr);
  table_->ShowBestCards({});
}

/// Files of the library that are not the current board's may be others: results, and other boards.
void MainWindow::ShowFolder() {
  results_->ReadTraveller();
  summaries_->Show(results_->File());
  summaries_->LookAtAll();
  DisplayPlay();
}

void MainWindow::Say(const QString& text) {
  status_->setText(text);
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

/// Nothing under the eyes of a class, and nothing that would put away what is being typed.
DiskWatch::Leave MainWindow::LeaveToWatch() const {
  using Leave = DiskWatch::Leave;
  const bool busy = commands_->Running() || session_.batchRunning || progress_->IsWorking() ||
                    QApplication::activeModalWidget() != nullptr ||
                    QApplication::activePopupWidget() != nullptr;
  if (busy || !isVisible() || isMinimized() || state_.presentation ||
      results_->Record() != nullptr || library_->Typing(session_)) {
    return Leave::Nothing;
  }
  if (session_.board.playMode || edit_->Editing()) return Leave::Tell;
  return edit_->CanUndo() ? Leave::List : Leave::Reload;
}

void MainWindow::DisplayAuction() {
  results_->DropStaleRecord(commands_->Auction() != nullptr || edit_->Editing());
  const Replay* record = results_->Record();
  auction_->Show(session_, commands_->Auction(),
                 record != nullptr ? &record->Record().board : nullptr);
  DisplayPlay();
}

/// All that changes when a card is played or taken back.
void MainWindow::DisplayPlay() {
  if (progress_->IsWorking()) return;
  library_->OfferNext(play_->Play().Finished());
  traveller_->Show(session_);
  DisplayTable();
  ShowTricks();
  ShowState();
}

/// Gathers the state, and sets the actions and what is shown by it.
void MainWindow::ShowState() {
  state_.working = progress_->IsWorking();
  state_ = StateOf(std::move(state_), session_, *commands_, *play_, *edit_, *results_, updates_);
  actions_->Show(state_);
  menu_->ShowRecent(RecentFiles(session_.settings.recentFiles));
  ShowPanes();
}

/// The board, its play or its auction; or the play record that is looked at.
void MainWindow::DisplayTable() {
  if (const Replay* record = results_->Record()) {
    DisplayRecord(*record);
    return;
  }
  const AuctionEntry* entry = commands_->Auction();
  contract_->Show(session_, play_->Play());
  if (edit_->Editing()) {
    table_->ShowEdit(session_.board, session_.settings);
    return;
  }
  if (entry != nullptr) {
    DisplayBidding(*entry);
    return;
  }
  if (session_.library.boardCount == 0 && !HasCards(session_.board.hands)) {
    table_->ShowEmpty();
    return;
  }
  ShowPlayOf(session_.board, play_->Play());
}

/// The hands of `board` as `play` has left them, and what each card leads to.
void MainWindow::ShowPlayOf(const Board& board, const CardPlay& play,
                            const PerSeat<std::string>& names) {
  table_->Show(board, session_.settings, play.PlayMode() ? &play : nullptr, std::nullopt, names);
  best_->Find(play, board);
  table_->ShowBestCards(best_->Tricks());
}

/// Nobody is declarer until the auction has been taken over.
void MainWindow::DisplayBidding(const AuctionEntry& entry) {
  Board undecided = session_.board;
  undecided.contract.clear();
  undecided.contractLevel = 0;
  table_->Show(undecided, session_.settings, nullptr,
               entry.Over() ? std::nullopt : std::optional(entry.ToCall()));
  table_->ShowBestCards({});
}

void MainWindow::DisplayRecord(const Replay& record) {
  contract_->ShowRecord(record, session_.settings);
  const auto row = static_cast<std::size_t>(results_->Row());
  ShowPlayOf(record.Record().board, record.Play(), results_->OfBoard().rows.at(row).players);
}

void MainWindow::BeginEditing() {
  Display();
  QWidget* line = editPane_->FirstLine();
  (line != nullptr ? line : table_)->setFocus();
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
  left_->setEnabled(!working);
  table_->setEnabled(!working);
  setAcceptDrops(!working);
  ShowState();
  if (!working) table_->setFocus();
}

void MainWindow::ShowPanes() {
  const PanesShown shown = ShownIn(state_);
  menu_->Show(state_, shown.bars);
  statusBar()->setVisible(shown.bars);
  area_->ShowMargin(shown.bars);
  area_->SetWidths(session_.settings.leftWidth, session_.settings.rightWidth);
  KeepRoom(table_, true);
  KeepRoom(left_, shown.leftRoom);
  KeepRoom(right_, shown.rightRoom);
  KeepRoom(makeable_, shown.makeableRoom);
  const std::pair<QWidget*, bool> panes[] = {
      {table_, shown.table},         {left_, shown.left},         {library_, shown.library},
      {tricks_, shown.tricks},       {editPane_, shown.edit},     {statistics_, shown.statistics},
      {right_, shown.right},         {contract_, shown.contract}, {makeable_, shown.makeable},
      {traveller_, shown.traveller},
  };
  for (const auto& [pane, visible] : panes) pane->setVisible(visible);
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
      traveller_->Toggle();
      break;
    case WindowAsk::FindBoards:
      library_->List()->BeginFind();
      break;
    case WindowAsk::HideHands:
      HideAll();
      break;
    case WindowAsk::HideNorth:
    case WindowAsk::HideEast:
    case WindowAsk::HideSouth:
    case WindowAsk::HideWest:
      Hide(static_cast<Seat>(IndexOf(what) - IndexOf(WindowAsk::HideNorth)));
      break;
  }
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

void MainWindow::ShowHidden() {
  table_->SetHidden(state_.hidden);
  ShowState();
}

/// The tricks of the play, or of the play record that is looked at.
void MainWindow::ShowTricks() {
  const Replay* record = results_->Record();
  const Board& board = record != nullptr ? record->Record().board : session_.board;
  const CardPlay& play = record != nullptr ? record->Play() : play_->Play();
  const auto known = [&](const PlayState& before) { return best_->Known(before, board.trumps); };
  tricks_->Show(session_, board, MakeTrickGrid(play, known), record != nullptr);
}

void MainWindow::SetPresentation(bool on) {
  if (state_.presentation == on) return;
  state_.presentation = on;
  table_->SetPresentation(on);
  Display();
  if (on) {
    stateBefore_ = windowState();
    setWindowState(stateBefore_ | Qt::WindowFullScreen);
  } else {
    setWindowState(stateBefore_);
  }
  table_->setFocus();
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
  if (event->type() != QEvent::PaletteChange || status_ == nullptr) return;
  Later(this, [this] {
    StyleStatusLine();
    Display();
  });
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (progress_->IsWorking()) {
    progress_->Cancel();
    event->ignore();
    return;
  }
  if (!editPane_->FinishTyping() || !play_->Leave() ||
      CheckSaveChanges(session_) == Answer::Cancel) {
    event->ignore();
    return;
  }
  Display();
  event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!DroppedRecords(*event->mimeData()).Empty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const DroppedRecords dropped(*event->mimeData());
  event->acceptProposedAction();
  // Questions come after the drop, so that the program that it came from does not wait for them.
  Later(this, [this, dropped] {
    ImportFiles(dropped.files);
    if (!dropped.lin.isEmpty()) commands_->ImportLinText(dropped.lin);
  });
}

}  // namespace tricklet::ui
