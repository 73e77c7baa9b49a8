#include "ui/panes/trick_pane.h"

#include <array>

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "ui/actions/action_grid.h"
#include "ui/actions/actions.h"
#include "ui/panes/seat_header.h"
#include "ui/panes/trick_delegate.h"
#include "ui/style/focus_ring.h"
#include "ui/style/follow_font.h"
#include "ui/style/highlight.h"
#include "ui/style/qt_text.h"
#include "ui/style/side_column.h"
#include "ui/style/symbols.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

constexpr int kNumberColumn = 0;
constexpr int kColumns = 1 + kSeats;
constexpr double kFontSize = 0.97;  // of the window's, so that four cards fit beside each other
constexpr double kRowHeight = 1.5;  // in heights of the grid's font, as are the next two
constexpr double kHeadHeight = 1.5;
constexpr double kNumberWidth = 1.5;
constexpr int kLeastRows = 6;  // before the column scrolls
/// So that the grid takes the room that the column has left, up to its last row.
constexpr int kStretch = 100;

/// Columns run West, North, East, South.
constexpr int ColumnOf(Seat seat) {
  return 1 + (IndexOf(seat) + 1) % kSeats;
}

/// Everything that the drawing of a card tells, in words.
QString Spoken(Seat seat, const TrickGrid::Cell& cell, bool here) {
  QStringList parts{TrickPane::tr("%1: %2 %3")
                        .arg(ToQt(SeatName[seat]), ToQt(SuitName[cell.card.suit]),
                             ToQt(RankText[cell.card.rank]))};
  if (cell.led) parts += TrickPane::tr("led");
  if (cell.wins) parts += TrickPane::tr("the winning card");
  if (cell.given == 1) parts += TrickPane::tr("gave away 1 trick");
  if (cell.given > 1) parts += TrickPane::tr("gave away %1 tricks").arg(cell.given);
  if (here) parts += TrickPane::tr("the last card on the table");
  return parts.join(QStringLiteral(", "));
}

QTableWidgetItem* MakeGap(Seat seat, bool next) {
  auto* item = new QTableWidgetItem;
  item->setData(TrickDelegate::NextRole, next);
  if (next) {
    item->setToolTip(TrickPane::tr("%1 is to play").arg(ToQt(SeatName[seat])));
    item->setData(Qt::AccessibleTextRole, item->toolTip());
  }
  return item;
}

QString CaptionOf(TrickPane::Leaving leaving) {
  switch (leaving) {
    case TrickPane::Leaving::Record:
      return TrickPane::tr("Put the record away");
    case TrickPane::Leaving::FinishedPlay:
      return TrickPane::tr("Put the play away");
    case TrickPane::Leaving::Play:
      break;
  }
  return TrickPane::tr("Stop play");
}

}  // namespace

TrickPane::TrickPane(const Actions& actions, QWidget* parent)
    : Section(QStringLiteral("fraTricks"), parent),
      lblDeal_(new ElidedLabel(this)),
      flexTricks_(new QTableWidget(0, kColumns, this)),
      lblGiven_(new QLabel(tr("Red: gave a trick away double-dummy"), this)),
      fraMistakes_(new QWidget(this)),
      cmdPreviousMistake_(MakeActionButton("cmdPreviousMistake", actions.Of("mnuPreviousMistake"))),
      cmdNextMistake_(MakeActionButton("cmdNextMistake", actions.Of("mnuNextMistake"))),
      cmdStopPlay_(new QPushButton(CaptionOf(Leaving::Play), this)) {
  lblDeal_->setObjectName(QStringLiteral("lblTrickDeal"));
  MakeQuiet(lblDeal_);
  Body()->addWidget(lblDeal_);
  auto* mistakes = new QHBoxLayout(fraMistakes_);
  mistakes->setContentsMargins(0, 0, 0, 0);
  for (QPushButton* button : {cmdPreviousMistake_, cmdNextMistake_}) {
    button->setMinimumWidth(1);
    mistakes->addWidget(button, 1);
  }
  Body()->addWidget(fraMistakes_);
  BuildGrid();
  ConnectGrid();
  Body()->addWidget(flexTricks_, kStretch);
  lblGiven_->setObjectName(QStringLiteral("lblGiven"));
  lblGiven_->setWordWrap(true);
  MakeQuiet(lblGiven_);
  KeepRoom(lblGiven_, true);  // so that the button stays where it is
  Body()->addWidget(lblGiven_);
  cmdStopPlay_->setObjectName(QStringLiteral("cmdStopPlay"));
  connect(cmdStopPlay_, &QPushButton::clicked, this, &TrickPane::StopAsked);
  Body()->addWidget(cmdStopPlay_);
  Body()->addStretch(1);
  QSizePolicy policy = sizePolicy();
  policy.setVerticalStretch(kStretch);
  setSizePolicy(policy);
}

void TrickPane::BuildGrid() {
  flexTricks_->setObjectName(QStringLiteral("flexTricks"));
  flexTricks_->setAccessibleName(tr("Tricks"));
  flexTricks_->setItemDelegate(new TrickDelegate(flexTricks_));
  flexTricks_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  flexTricks_->setSelectionMode(QAbstractItemView::NoSelection);
  flexTricks_->setShowGrid(false);
  flexTricks_->setTabKeyNavigation(false);
  flexTricks_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  flexTricks_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  auto* heads = new SeatHeader(flexTricks_);
  flexTricks_->setHorizontalHeader(heads);
  heads->setMinimumSectionSize(1);
  heads->setSectionResizeMode(QHeaderView::Stretch);
  heads->setSectionResizeMode(kNumberColumn, QHeaderView::Fixed);
  flexTricks_->verticalHeader()->hide();
  flexTricks_->verticalHeader()->setMinimumSectionSize(1);
  new FollowFont(flexTricks_, kFontSize);
  new FocusRing(flexTricks_);
  SetSizes();
}

void TrickPane::ConnectGrid() {
  flexTricks_->setMouseTracking(true);
  flexTricks_->installEventFilter(this);
  flexTricks_->viewport()->installEventFilter(this);
  const auto point = [this](int row, int column) { emit Pointed(NumberAt(row, column)); };
  connect(flexTricks_, &QTableWidget::cellEntered, this, point);
  connect(flexTricks_, &QTableWidget::currentCellChanged, this, point);
  connect(flexTricks_, &QTableWidget::viewportEntered, this, [this] { emit Pointed(-1); });
  connect(flexTricks_, &QTableWidget::cellClicked, this, &TrickPane::Ask);
  connect(flexTricks_, &QTableWidget::cellActivated, this, &TrickPane::Ask);
}

int TrickPane::NumberAt(int row, int column) const {
  const QTableWidgetItem* item = flexTricks_->item(row, column);
  const QVariant number = item != nullptr ? item->data(TrickDelegate::NumberRole) : QVariant();
  return number.isValid() ? number.toInt() : -1;
}

void TrickPane::Ask(int row, int column) {
  const int number = NumberAt(row, column);
  if (record_ && number >= 0) emit PlaceAsked(number + 1);
}

bool TrickPane::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Leave || event->type() == QEvent::FocusOut) emit Pointed(-1);
  return Section::eventFilter(watched, event);
}

void TrickPane::SetSizes() {
  const int height = QFontMetrics(flexTricks_->font()).height();
  const auto pixels = [height](double heights) { return static_cast<int>(height * heights); };
  flexTricks_->setColumnWidth(kNumberColumn, pixels(kNumberWidth));
  flexTricks_->verticalHeader()->setDefaultSectionSize(pixels(kRowHeight));
  flexTricks_->horizontalHeader()->setFont(flexTricks_->font());
  flexTricks_->horizontalHeader()->setFixedHeight(pixels(kHeadHeight));
  const auto heightFor = [&](int rows) {
    return pixels(kHeadHeight) + rows * pixels(kRowHeight) + 2 * flexTricks_->frameWidth();
  };
  flexTricks_->setMinimumHeight(heightFor(kLeastRows));
  flexTricks_->setMaximumHeight(heightFor(kTricks));
}

QList<QWidget*> TrickPane::TabOrder() const {
  return {cmdPreviousMistake_, cmdNextMistake_, flexTricks_, cmdStopPlay_};
}

void TrickPane::Show(const Session& session, const Board& board, const TrickGrid& grid,
                     Leaving leaving) {
  SetTitle(
      tr("Board %1 · %2").arg(QString::number(board.boardNumber), ToQt(session.ShownLibrary())));
  lblDeal_->setText(
      tr("Dealer %1 · %2")
          .arg(ToQt(SeatName[board.Dealer()]), ToQt(VulShort[board.Vulnerability()])));
  cmdStopPlay_->setText(CaptionOf(leaving));
  record_ = leaving == Leaving::Record;
  fraMistakes_->setVisible(record_);
  ShowHeads();
  const int tricks = static_cast<int>(grid.rows.size());
  flexTricks_->clearSpans();
  flexTricks_->setRowCount(tricks + (grid.claimedBy ? 1 : 0));
  for (int row = 0; row < tricks; ++row) ShowRow(row, grid, session.settings);
  if (grid.claimedBy) ShowClaim(tricks, grid);
  const int seen = record_ ? grid.current : flexTricks_->rowCount() - 1;
  if (seen >= 0) flexTricks_->scrollToItem(flexTricks_->item(seen, kNumberColumn));
  lblGiven_->setVisible(grid.AnyGiven());
}

void TrickPane::ShowHeads() {
  for (int column = 0; column < kColumns; ++column) {
    auto* head = new QTableWidgetItem;
    head->setBackground(palette().brush(QPalette::Base));
    head->setForeground(palette().brush(QPalette::PlaceholderText));
    flexTricks_->setHorizontalHeaderItem(column, head);
  }
  for (const Seat seat : kAllSeats) {
    flexTricks_->horizontalHeaderItem(ColumnOf(seat))->setText(ToQt(SeatName[seat]));
  }
}

/// `here` is the number of the card that was stepped to; -1 for none.
QTableWidgetItem* TrickPane::MakeCard(Seat seat, const TrickGrid::Cell& cell,
                                      const Settings& settings, int here) const {
  auto* item = new QTableWidgetItem(ToQt(RankText[cell.card.rank]));
  item->setData(TrickDelegate::SymbolRole, ToQt(SuitSymbol[cell.card.suit]));
  item->setData(TrickDelegate::SymbolColourRole,
                SuitColourOnWindow(cell.card.suit, settings.suitColour, palette()));
  item->setData(TrickDelegate::LedRole, cell.led);
  item->setData(TrickDelegate::WinsRole, cell.wins);
  item->setData(TrickDelegate::NumberRole, cell.number);
  item->setData(TrickDelegate::HereRole, cell.number == here);
  if (cell.given > 0) {
    item->setData(TrickDelegate::GivenRole, QStringLiteral("\u2212%1").arg(cell.given));
  }
  item->setToolTip(Spoken(seat, cell, cell.number == here));
  item->setData(Qt::AccessibleTextRole, item->toolTip());
  return item;
}

void TrickPane::ShowRow(int row, const TrickGrid& grid, const Settings& settings) {
  const bool current = row == grid.current;
  const TrickGrid::Row& cards = grid.rows.at(static_cast<std::size_t>(row));
  auto* number = new QTableWidgetItem(QString::number(row + 1));
  number->setTextAlignment(Qt::AlignCenter);
  number->setData(Qt::AccessibleTextRole, current ? tr("Trick %1, the current one").arg(row + 1)
                                                  : tr("Trick %1").arg(row + 1));
  QFont font = flexTricks_->font();
  font.setBold(current);
  number->setFont(font);
  if (!current) number->setForeground(palette().brush(QPalette::PlaceholderText));
  flexTricks_->setItem(row, kNumberColumn, number);
  for (const Seat seat : kAllSeats) {
    flexTricks_->setItem(row, ColumnOf(seat),
                         cards[seat]
                             ? MakeCard(seat, *cards[seat], settings, record_ ? grid.cards - 1 : -1)
                             : MakeGap(seat, current && grid.toPlay == seat));
  }
  if (!current) return;
  for (int column = 0; column < kColumns; ++column) {
    flexTricks_->item(row, column)->setBackground(MarkedRowColour(palette()));
  }
}

void TrickPane::ShowClaim(int row, const TrickGrid& grid) {
  const QString side = grid.claimedBy == Side::NorthSouth ? tr("North-South") : tr("East-West");
  const QString text = grid.claimed == grid.claimedOf
                           ? tr("%1 claimed the rest")
                           : tr("%1 claimed %2 of the last %3")
                                 .arg(QStringLiteral("%1"), QString::number(grid.claimed),
                                      QString::number(grid.claimedOf));
  auto* claim = new QTableWidgetItem(text.arg(side));
  claim->setForeground(palette().brush(QPalette::PlaceholderText));
  claim->setToolTip(claim->text());
  flexTricks_->setItem(row, kNumberColumn, claim);
  flexTricks_->setSpan(row, kNumberColumn, 1, kColumns);
}

void TrickPane::changeEvent(QEvent* event) {
  Section::changeEvent(event);
  if (event->type() == QEvent::FontChange) SetSizes();
}

}  // namespace tricklet::ui
