#include "ui/panes/board_list.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QVBoxLayout>

#include "ui/background/board_summaries.h"
#include "ui/panes/board_filter.h"
#include "ui/panes/board_list_model.h"
#include "ui/panes/board_list_view.h"
#include "ui/style/qt_text.h"
#include "ui/style/section.h"

namespace tricklet::ui {

BoardList::BoardList(const Session& session, BoardSummaries& summaries, QWidget* parent)
    : QWidget(parent),
      session_(session),
      summaries_(summaries),
      boards_(new BoardListModel(session, summaries, this)),
      found_(new BoardFilter(boards_)),
      txtFindBoards(new QLineEdit(this)),
      lstBoards(new BoardListView(boards_, found_, this)),
      lblFound(new QLabel(this)) {
  BuildFind();
  lblFound->setObjectName(QStringLiteral("lblFound"));
  lblFound->setWordWrap(true);
  MakeQuiet(lblFound);
  lblFound->hide();
  connect(lstBoards, &BoardListView::Chosen, this, &BoardList::Choose);
  connect(lstBoards, &BoardListView::Left, this, &BoardList::Left);
  connect(lstBoards, &BoardListView::Seen, &summaries_, &BoardSummaries::SetSeen);
  connect(lstBoards, &QWidget::customContextMenuRequested, this, &BoardList::AskForMenu);
  for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
    connect(found_, signal, this, &BoardList::ShowFound);
  }
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(6);
  column->addWidget(txtFindBoards);
  column->addWidget(lblFound);
  column->addWidget(lstBoards, 1);
}

void BoardList::BuildFind() {
  txtFindBoards->setObjectName(QStringLiteral("txtFindBoards"));
  txtFindBoards->setPlaceholderText(tr("Find boards"));
  txtFindBoards->setAccessibleName(tr("Find boards"));
  txtFindBoards->setClearButtonEnabled(true);
  const QString tip =
      tr("Shows the boards that all of these words fit, for example \"5-12 ew 4s\":\n"
         "7 or 5-12: the number\n"
         "north, east, south, west: the dealer\n"
         "none, NS, EW, all: who is vulnerable\n"
         "4S, 3NTx, spades: the contract; part, game or slam; doubled, redoubled\n"
         "bid, passed: the auction; played, unplayed: the result\n"
         "empty, dealt: the cards; changed: not saved\n"
         "Enter, where no board fits: finds by a condition, a player or a note");
  txtFindBoards->setToolTip(tip);
  txtFindBoards->setAccessibleDescription(tip);
  connect(txtFindBoards, &QLineEdit::textChanged, this, &BoardList::Find);
  connect(txtFindBoards, &QLineEdit::returnPressed, this, &BoardList::GoOrSearch);
  new QShortcut(
      Qt::Key_Down, txtFindBoards, this, [this] { GoToFound(); }, Qt::WidgetShortcut);
  new QShortcut(
      Qt::Key_Escape, txtFindBoards, this,
      [this] {
        txtFindBoards->clear();
        emit Left();
      },
      Qt::WidgetShortcut);
}

void BoardList::Show() {
  if (library_ != session_.LibraryName()) {
    library_ = session_.LibraryName();
    txtFindBoards->clear();
  }
  boards_->Show();
  lstBoards->ShowCurrent(session_.board.boardNumber, session_.settings.suitColour);
  ShowFound();
}

void BoardList::Find(const QString& text) {
  found_->Find(BoardQuery(FromQt(text)));
  lstBoards->ShowCurrent(session_.board.boardNumber, session_.settings.suitColour);
  ShowFound();
}

/// What is left out is said.
void BoardList::ShowFound() {
  lblFound->setText(found_->rowCount() == 0
                        ? tr("None. Enter finds more.")
                        : tr("%1 of %2 boards").arg(found_->rowCount()).arg(boards_->rowCount()));
  lblFound->setVisible(!found_->FindsAll());
}

/// Enter in the box. That list tells boards by what its columns say; where none fits, the person
/// may mean what only the files tell.
void BoardList::GoOrSearch() {
  if (found_->rowCount() > 0 || found_->FindsAll()) return GoToFound();
  const QString text = txtFindBoards->text();
  txtFindBoards->clear();  // so that the list is whole again afterwards
  emit SearchAsked(text);
}

/// Enter or Down in the box: the first board that was found, unless the current one is among them.
void BoardList::GoToFound() {
  if (found_->rowCount() == 0) return;
  lstBoards->setFocus(Qt::OtherFocusReason);
  if (found_->mapFromSource(boards_->index(session_.board.boardNumber - 1, 0)).isValid()) return;
  Choose(found_->mapToSource(found_->index(0, 0)).row() + 1);
}

void BoardList::BeginFind() {
  txtFindBoards->setFocus(Qt::ShortcutFocusReason);
  txtFindBoards->selectAll();
}

QList<QWidget*> BoardList::TabOrder() const {
  return {txtFindBoards, lstBoards};
}

void BoardList::Choose(int boardNumber) {
  emit BoardChosen(boardNumber);
  lstBoards->ShowCurrent(session_.board.boardNumber, session_.settings.suitColour);
}

/// What a menu offers is done to the current board: the one below the mouse has to become that.
void BoardList::AskForMenu(const QPoint& place) {
  const int boardNumber = lstBoards->BoardAt(place);
  if (boardNumber == 0) return;
  const QPoint onScreen = lstBoards->viewport()->mapToGlobal(place);
  if (boardNumber != session_.board.boardNumber) Choose(boardNumber);
  if (boardNumber == session_.board.boardNumber) emit MenuAsked(onScreen);
}

}  // namespace tricklet::ui
