#include "ui/dialogs/frmFindBoards.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

#include "core/fault.h"
#include "finding/board_copies.h"
#include "finding/board_deletion.h"
#include "finding/board_renumbering.h"
#include "finding/read_query.h"
#include "library/library_choice.h"
#include "library/library_names.h"
#include "ui/dialogs/frmNumberBoards.h"
#include "ui/finding/board_search.h"
#include "ui/finding/found_boards_view.h"
#include "ui/style/dialog_parts.h"
#include "ui/style/progress_frame.h"
#include "ui/style/qt_text.h"
#include "ui/style/section.h"

namespace tricklet::ui {
namespace {

constexpr int kPause = 250;        // milliseconds after the last key
constexpr int kLongestText = 500;  // characters that can be typed

}  // namespace

frmFindBoards::frmFindBoards(Session& session, FindLook& look, QWidget* parent)
    : QDialog(parent),
      session_(session),
      look_(look),
      found_(new FoundBoardsModel(this)),
      timLook(new QTimer(this)),
      search_(new BoardSearch(this)) {
  setObjectName(QStringLiteral("frmFindBoards"));
  setWindowTitle(tr("Find boards"));
  grdFound = new FoundBoardsView(found_, session_.settings.suitColour, this);
  auto* column = new QVBoxLayout(this);
  column->addWidget(MakeHead());
  column->addWidget(grdFound, 1);
  column->addWidget(MakeFoot());
  timLook->setSingleShot(true);
  connect(timLook, &QTimer::timeout, this, &frmFindBoards::Look);
  connect(search_, &BoardSearch::Went, this, &frmFindBoards::Take);
  connect(search_, &BoardSearch::Broken, this, &frmFindBoards::TellBroken);
  connect(search_, &BoardSearch::Ended, this, &frmFindBoards::ShowCounts);
  connect(grdFound, &FoundBoardsView::ChoiceChanged, this, &frmFindBoards::ShowState);
  connect(grdFound, &FoundBoardsView::Entered, this, &frmFindBoards::GoToBoard);
  connect(progress_, &ProgressFrame::Begun, this, &frmFindBoards::ShowState);
  connect(progress_, &ProgressFrame::Ended, this, &frmFindBoards::ShowState);
  new QShortcut(
      QKeySequence::Delete, grdFound, this, [this] { Delete(); }, Qt::WidgetShortcut);
  SetTabOrder();
  SetFirstSize();
  Look();
  txtFind->setFocus();
}

frmFindBoards::~frmFindBoards() = default;

QWidget* frmFindBoards::MakeHead() {
  auto* head = new QWidget(this);
  txtFind = new QLineEdit(ToQt(look_.text), head);
  txtFind->setObjectName(QStringLiteral("txtFind"));
  txtFind->setAccessibleName(tr("Boards to find"));
  txtFind->setPlaceholderText(
      tr("slam \u00b7 contract, par, dealer, player, note; or a condition: hcp(south) > 15"));
  txtFind->setClearButtonEnabled(true);
  txtFind->setMaxLength(kLongestText);
  txtFind->selectAll();
  const QString tip =
      tr("Boards that all of these words fit, for example \"5-12 ew 4s\":\n"
         "7 or 5-12: the number; north: the dealer; none, NS, EW, all: who is vulnerable\n"
         "4S, 3NTx, spades: the contract; part, game, slam; bid, passed; played, unplayed\n"
         "par 4s, par ew, par 420: the par\n"
         "any other word: a player's name, or the notes\n"
         "Or those whose deal meets a condition: hcp(south) > 15 and spades(south) > 4");
  txtFind->setToolTip(tip);
  txtFind->setAccessibleDescription(tip);
  cmdAll = new QPushButton(tr("&All libraries"), head);
  cmdAll->setObjectName(QStringLiteral("cmdAll"));
  cmdAll->setCheckable(true);
  cmdAll->setChecked(look_.all);
  cmdAll->setAutoDefault(false);
  cmdAll->setToolTip(tr("Look in all libraries, or in the current one only"));
  auto* row = new QHBoxLayout(head);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(txtFind, 1);
  row->addWidget(cmdAll);
  connect(txtFind, &QLineEdit::textChanged, this, &frmFindBoards::LookSoon);
  connect(cmdAll, &QPushButton::toggled, this, [this] {
    Look();
    txtFind->setFocus();  // to type on
  });
  const auto toList = [this] {
    if (timLook->isActive()) Look();
    grdFound->setFocus(Qt::OtherFocusReason);
    if (grdFound->Current() == nullptr) grdFound->Choose(-1);
  };
  connect(txtFind, &QLineEdit::returnPressed, this, toList);
  new QShortcut(Qt::Key_Down, txtFind, this, toList, Qt::WidgetShortcut);
  return head;
}

QPushButton* frmFindBoards::MakeButton(const char* name, const QString& text, const QString& tip,
                                       void (frmFindBoards::*action)()) {
  QPushButton* button = MakeCommandButton(name, text, this);
  button->setToolTip(tip);
  connect(button, &QPushButton::clicked, this, action);
  return button;
}

QWidget* frmFindBoards::MakeFoot() {
  auto* foot = new QWidget(this);
  lblFound = new QLabel(foot);
  lblFound->setObjectName(QStringLiteral("lblFound"));
  lblFound->setTextFormat(Qt::PlainText);
  lblFound->setWordWrap(true);
  progress_ = new ProgressFrame(foot);
  cmdOpen =
      MakeButton("cmdOpen", tr("&Open"), tr("Go to the board (Enter)"), &frmFindBoards::GoToBoard);
  cmdCopyTo = MakeButton("cmdCopyTo", tr("&Copy to..."),
                         tr("Copy the chosen boards to another library"), &frmFindBoards::Copy);
  cmdRenumber =
      MakeButton("cmdRenumber", tr("&Renumber..."),
                 tr("Give the chosen boards of a library other numbers"), &frmFindBoards::Renumber);
  cmdDelete =
      MakeButton("cmdDelete", tr("&Delete..."),
                 tr("Send the chosen boards to the recycle bin (Del)"), &frmFindBoards::Delete);
  cmdPrint = MakeButton("cmdPrint", tr("&Print..."), tr("Print the chosen boards of a library"),
                        &frmFindBoards::Print);
  cmdPublish =
      MakeButton("cmdPublish", tr("P&ublish..."),
                 tr("Write the chosen boards of a library as a web page"), &frmFindBoards::Publish);
  cmdClose = MakeButton("cmdClose", tr("Close"), {}, &frmFindBoards::reject);
  auto* buttons = new QHBoxLayout;
  for (QPushButton* button : {cmdOpen, cmdCopyTo, cmdRenumber, cmdDelete, cmdPrint, cmdPublish}) {
    buttons->addWidget(button);
  }
  buttons->addStretch(1);
  buttons->addWidget(cmdClose);
  auto* column = new QVBoxLayout(foot);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(lblFound);
  column->addWidget(progress_);
  column->addLayout(buttons);
  return foot;
}

void frmFindBoards::SetTabOrder() {
  const QList<QWidget*> order{txtFind,     cmdAll,    grdFound, cmdOpen,    cmdCopyTo,
                              cmdRenumber, cmdDelete, cmdPrint, cmdPublish, cmdClose};
  for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order.at(i - 1), order.at(i));
}

void frmFindBoards::SetFirstSize() {
  resize(sizeHint().boundedTo(RoomForDialog(*this)));
}

void frmFindBoards::LookSoon() {
  timLook->start(kPause);
}

/// A new search, for what is typed now. What cannot be read leaves the list as it is.
void frmFindBoards::Look() {
  timLook->stop();
  search_->Stop();
  look_.text = FromQt(txtFind->text());
  look_.all = cmdAll->isChecked();
  const QueryOutcome outcome = ReadQuery(look_.text, {}, session_.getSolver);
  fault_ = ToQt(outcome.fault);
  if (!outcome.query) {
    ShowCounts();
    return;
  }
  if (const FoundBoard* current = grdFound->Current()) {
    keep_ = BoardPlace{current->library, current->listed.boardNumber};
  }
  setWindowTitle(look_.all ? tr("Boards of all libraries")
                           : tr("Boards of %1").arg(ToQt(session_.ShownLibrary())));
  grdFound->ShowLibraries(look_.all);
  found_->Clear();
  broken_.clear();
  progressOfSearch_ = {};
  try {
    FindScope scope{session_.FileLocation(), {session_.LibraryName()}};
    if (look_.all) scope.libraries = FoldersOf(scope.root);
    search_->Begin(std::move(scope), *outcome.query);
  } catch (const Fault& fault) {
    fault_ = ToQt(fault.Description());
  }
  ShowCounts();
}

void frmFindBoards::Take(const std::vector<FoundBoard>& found, const FindProgress& progress) {
  const int first = found_->rowCount();
  found_->Append(found);
  progressOfSearch_ = progress;
  const auto kept = std::find_if(found.begin(), found.end(), [this](const FoundBoard& board) {
    return keep_ == BoardPlace{board.library, board.listed.boardNumber};
  });
  if (kept != found.end()) {
    grdFound->Choose(first + static_cast<int>(kept - found.begin()));
    keep_.reset();
  }
  ShowCounts();
}

void frmFindBoards::TellBroken(const QString& what) {
  broken_ += what;
}

/// What was found, or why nothing could be looked for; and what could not be read.
void frmFindBoards::ShowCounts() {
  QString text = fault_;
  if (text.isEmpty()) {
    text = tr("%1 of %2 boards").arg(found_->rowCount()).arg(progressOfSearch_.boards);
    if (search_->Running() && progressOfSearch_.of > 1) {
      text += tr("; %1 of %2 libraries so far")
                  .arg(progressOfSearch_.libraries)
                  .arg(progressOfSearch_.of);
    }
  }
  if (!broken_.isEmpty()) {
    text += u'\n' + tr("Not read: %1").arg(broken_.front());
    if (broken_.size() > 1) text += u' ' + tr("(and %1 more)").arg(broken_.size() - 1);
  }
  lblFound->setText(text);
  lblFound->setToolTip(broken_.size() > 1 ? broken_.join(u'\n') : QString());
  ShowState();
}

void frmFindBoards::ShowState() {
  const std::vector<BoardPlace> chosen = Chosen();
  const bool idle = !progress_->IsWorking();
  const bool some = idle && !chosen.empty();
  const bool ofOne = some && OfOneLibrary(chosen);
  cmdOpen->setEnabled(some);
  for (QPushButton* button : {cmdCopyTo, cmdDelete}) button->setEnabled(some);
  for (QPushButton* button : {cmdRenumber, cmdPrint, cmdPublish}) button->setEnabled(ofOne);
  for (QWidget* widget : {static_cast<QWidget*>(txtFind), static_cast<QWidget*>(cmdAll)}) {
    widget->setEnabled(idle);
  }
}

std::vector<BoardPlace> frmFindBoards::Chosen() const {
  std::vector<BoardPlace> places;
  for (const FoundBoard* board : grdFound->Chosen()) {
    places.push_back({board->library, board->listed.boardNumber});
  }
  return places;
}

bool frmFindBoards::OfOneLibrary(const std::vector<BoardPlace>& boards) const {
  return std::all_of(boards.begin(), boards.end(), [&](const BoardPlace& board) {
    return board.library == boards.front().library;
  });
}

/// What works on one library works on the current one.
bool frmFindBoards::EnterLibraryOf(const std::vector<BoardPlace>& boards) {
  if (boards.empty() || !OfOneLibrary(boards)) return false;
  const std::string& library = boards.front().library;
  return library == session_.LibraryName() || SelectLibrary(session_, library);
}

void frmFindBoards::GoToBoard() {
  if (progress_->IsWorking()) return;
  const FoundBoard* current = grdFound->Current();
  if (current == nullptr) return;
  place_ = BoardPlace{current->library, current->listed.boardNumber};
  accept();
}

void frmFindBoards::Copy() {
  const std::vector<BoardPlace> boards = Chosen();
  frmNumberBoards dialog(session_, frmNumberBoards::For::Copying, static_cast<int>(boards.size()),
                         this);
  dialog.SetLibrary(look_.copiedTo);
  dialog.SetAction([&](const std::string& library, const NumberPlan& plan) {
    return CopyBoards(session_, boards, library, plan);
  });
  if (dialog.exec() != QDialog::Accepted) return;
  look_.copiedTo = dialog.Library();
  if (look_.all || look_.copiedTo == session_.LibraryName()) Look();
}

void frmFindBoards::Renumber() {
  const std::vector<BoardPlace> boards = Chosen();
  if (!EnterLibraryOf(boards)) return;
  std::vector<int> numbers;
  numbers.reserve(boards.size());
  for (const BoardPlace& board : boards) numbers.push_back(board.number);
  frmNumberBoards dialog(session_, frmNumberBoards::For::Renumbering,
                         static_cast<int>(boards.size()), this);
  dialog.SetAction([&](const std::string&, const NumberPlan& plan) {
    return RenumberBoards(session_, numbers, plan);
  });
  if (dialog.exec() == QDialog::Accepted) Look();
}

void frmFindBoards::Delete() {
  const std::vector<BoardPlace> boards = Chosen();
  if (boards.empty() || progress_->IsWorking()) return;
  DeleteBoards(session_, boards);
  Look();
  if (closing_) done(*closing_);
}

void frmFindBoards::With(const BoardsAction& action) {
  const std::vector<BoardPlace> boards = Chosen();
  if (!EnterLibraryOf(boards)) return;
  std::set<int> numbers;
  for (const BoardPlace& board : boards) numbers.insert(board.number);
  action(numbers);
}

void frmFindBoards::Print() {
  With(print_);
}

void frmFindBoards::Publish() {
  With(publish_);
}

void frmFindBoards::done(int result) {
  if (progress_->IsWorking()) {
    closing_ = result;
    progress_->Cancel();
    return;
  }
  search_->Stop();
  QDialog::done(result);
}

}  // namespace tricklet::ui
