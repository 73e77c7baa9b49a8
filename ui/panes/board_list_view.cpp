#include "ui/panes/board_list_view.h"

#include <utility>

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSortFilterProxyModel>

#include "ui/panes/board_list_delegate.h"
#include "ui/panes/board_list_model.h"
#include "ui/panes/board_row_text.h"
#include "ui/style/focus_ring.h"

namespace tricklet::ui {
namespace {

/// The one of most digits: 13 undertricks, vulnerable and redoubled, are 7600.
const QString kLongestScore = QStringLiteral("\u22127600");

bool IsPlain(const QKeyEvent& event) {
  return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

bool IsDigit(const QKeyEvent& event) {
  return IsPlain(event) && event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9;
}

bool Moves(const QKeyEvent& event) {
  if (!IsPlain(event)) return false;
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return true;
    default:
      return false;
  }
}

}  // namespace

BoardListView::BoardListView(BoardListModel* boards, QSortFilterProxyModel* rows, QWidget* parent)
    : QTreeView(parent), boards_(boards), rows_(rows), delegate_(new BoardListDelegate(this)) {
  setObjectName(QStringLiteral("lstBoards"));
  setAccessibleName(tr("Boards"));
  setModel(rows);
  new FocusRing(this);
  setItemDelegate(delegate_);
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setItemsExpandable(false);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // the columns stay where they are
  setContextMenuPolicy(Qt::CustomContextMenu);
  setColumnHidden(static_cast<int>(BoardColumn::Entry), true);
  header()->setSectionsMovable(false);
  header()->setSectionsClickable(false);
  header()->setSectionResizeMode(QHeaderView::Fixed);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(static_cast<int>(BoardColumn::Score), QHeaderView::Stretch);
  SetColumnWidths();
  typing_.setSingleShot(true);
  connect(&typing_, &QTimer::timeout, this, &BoardListView::GoToTyped);
  for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
    connect(rows, signal, this, &BoardListView::TellSeen, Qt::QueuedConnection);
  }
}

/// Room for the widest texts that are usual; a longer one ends in "...".
void BoardListView::SetColumnWidths() {
  QFont bold = font();
  bold.setBold(true);
  const int margin = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
  const auto setWidth = [&](BoardColumn column, const QFont& used, const QString& widest) {
    const int width = QFontMetrics(used).horizontalAdvance(widest) + margin;
    header()->resizeSection(static_cast<int>(column), width);
  };
  header()->setMinimumSectionSize(margin);
  scoreWidth_ = QFontMetrics(font()).horizontalAdvance(kLongestScore) + margin;
  setWidth(BoardColumn::Number, bold, QStringLiteral("999*"));
  for (const auto column :
       {BoardColumn::Dealer, BoardColumn::Vulnerability, BoardColumn::Contract}) {
    setWidth(column, font(), HeadText(column).shown + QLatin1Char(' '));
  }
}

void BoardListView::ShowCurrent(int boardNumber, bool fourColours) {
  delegate_->SetFourColours(fourColours);
  const bool another = std::exchange(current_, boardNumber) != boardNumber;
  PutBack();
  if (another && isVisible() && currentIndex().isValid()) scrollTo(currentIndex());
}

void BoardListView::PutBack() {
  const QModelIndex row = rows_->mapFromSource(boards_->index(current_ - 1, 0));
  if (row == currentIndex() && (!row.isValid() || selectionModel()->isSelected(row))) return;
  setCurrentIndex(row);
  if (!row.isValid()) clearSelection();
}

int BoardListView::BoardOf(const QModelIndex& row) const {
  const QModelIndex board = rows_->mapToSource(row);
  return board.isValid() ? board.row() + 1 : 0;
}

int BoardListView::BoardAt(const QPoint& place) const {
  return BoardOf(indexAt(place));
}

void BoardListView::ChooseCurrentRow() {
  const int board = BoardOf(currentIndex());
  if (board != 0 && board != current_) emit Chosen(board);
}

/// The keys that mean something in a list are not taken for those of the window. The menu key is
/// meant for the row of the current board.
bool BoardListView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (IsDigit(key) || Moves(key)) event->accept();
  }
  if (event->type() == QEvent::ContextMenu && currentIndex().isValid()) {
    // By the menu key, which is sent here: one by the mouse goes to the viewport.
    emit customContextMenuRequested(visualRect(currentIndex()).center());
    return true;
  }
  return QTreeView::event(event);
}

void BoardListView::keyPressEvent(QKeyEvent* event) {
  if (IsDigit(*event)) {
    TypeDigit(event->key() - Qt::Key_0);
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    GoToTyped();
    emit Left();
  } else if (Moves(*event)) {
    typed_ = 0;
    QTreeView::keyPressEvent(event);
    ChooseCurrentRow();
  } else {
    event->ignore();
  }
}

/// Goes to the board as soon as no further digit can follow, or when none has.
void BoardListView::TypeDigit(int digit) {
  typed_ = typed_ * 10 + digit;
  if (typed_ * 10 > boards_->rowCount()) {
    GoToTyped();
  } else {
    typing_.start(QApplication::keyboardInputInterval());
  }
}

void BoardListView::GoToTyped() {
  typing_.stop();
  const int board = std::exchange(typed_, 0);
  if (board > 0 && board <= boards_->rowCount() && board != current_) emit Chosen(board);
}

/// A board is chosen when the button is let go: a question that comes up meanwhile would get that.
/// Only the left button chooses; the right one asks what can be done with a board.
void BoardListView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) QTreeView::mousePressEvent(event);
}

void BoardListView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  QTreeView::mouseReleaseEvent(event);
  if (BoardAt(event->pos()) == 0) {
    PutBack();  // let go outside
  } else {
    ChooseCurrentRow();
  }
}

void BoardListView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && BoardAt(event->pos()) != 0) emit Left();
}

void BoardListView::resizeEvent(QResizeEvent* event) {
  QTreeView::resizeEvent(event);
  TellSeen();
}

/// Only now is the height known.
void BoardListView::showEvent(QShowEvent* event) {
  QTreeView::showEvent(event);
  scrollToTop();
  if (currentIndex().isValid()) scrollTo(currentIndex());
  TellSeen();
}

void BoardListView::scrollContentsBy(int dx, int dy) {
  QTreeView::scrollContentsBy(dx, dy);
  TellSeen();
}

void BoardListView::changeEvent(QEvent* event) {
  QTreeView::changeEvent(event);
  if (event->type() == QEvent::FontChange) SetColumnWidths();
}

void BoardListView::TellSeen() {
  const int first = BoardAt({0, 0});
  if (first == 0) return;
  const int last = BoardAt({0, viewport()->height() - 1});
  emit Seen(first, last != 0 ? last : boards_->rowCount());
}

int BoardListView::HeightOf(int rows) const {
  return header()->sizeHint().height() + rows * fontMetrics().height() * 4 / 3 + 2 * frameWidth();
}

QSize BoardListView::sizeHint() const {
  return {fontMetrics().averageCharWidth() * 30, HeightOf(12)};
}

/// No score is cut, for half of one reads as another.
QSize BoardListView::minimumSizeHint() const {
  int width = scoreWidth_ + verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
  for (const auto column : {BoardColumn::Number, BoardColumn::Dealer, BoardColumn::Vulnerability,
                            BoardColumn::Contract}) {
    width += columnWidth(static_cast<int>(column));
  }
  return {width, HeightOf(4)};
}

}  // namespace tricklet::ui
