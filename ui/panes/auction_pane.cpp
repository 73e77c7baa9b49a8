#include "ui/panes/auction_pane.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/panes/call_delegate.h"
#include "ui/panes/seat_header.h"
#include "ui/style/qt_text.h"
#include "ui/style/symbols.h"
#include "ui/style/theme.h"

namespace tricklet::ui {
namespace {

constexpr int kLeastRows = 3;  // so that the pane below does not jump from board to board
// An auction scrolls when it takes more than a third of the window's height and has more rows than
// these.
constexpr int kMostRows = 8;
constexpr int kPartOfWindow = 3;

/// Columns run West, North, East, South.
constexpr int ColumnOf(Seat seat) {
  return (IndexOf(seat) + 1) % kSeats;
}

/// Red that white text stands out from, on light and dark windows.
constexpr QColor kVulnerable(0xC8, 0x1E, 0x2E);
constexpr QColor kVulnerableOnDark(0x8C, 0x28, 0x32);
/// Doubles, on light and dark windows.
constexpr QColor kDouble(0xC8, 0x1E, 0x2E);
constexpr QColor kDoubleOnDark(0xFF, 0x7B, 0x86);

/// Room for a call, in heights of the window's font: the grid's columns are never narrower.
constexpr int kCallWidth = 4;

/// The setting's font, made small enough for the longest call to fit into a column.
QFont FontForCalls(const FontSetting& setting, const QFontMetrics& window) {
  QFont font = ToFont(setting);
  const int width = window.height() * kCallWidth;
  const int needed = QFontMetrics(font).horizontalAdvance(QStringLiteral("Rdbl "));
  if (needed > width) font.setPointSizeF(font.pointSizeF() * width / needed);
  return font;
}

QTableWidgetItem* MakeCall(const CallList& calls, int index, const Settings& settings,
                           const QPalette& palette) {
  const Call call = calls[index];
  auto* item = new QTableWidgetItem(ToQt(calls.ShownAt(index)));
  item->setTextAlignment(Qt::AlignCenter);
  if (call.IsUnread()) item->setToolTip(AuctionPane::tr("No call: %1").arg(item->text()));
  if (call.IsPass()) {
    item->setForeground(palette.brush(QPalette::PlaceholderText));
  } else if (call.IsDouble() || call.IsRedouble()) {
    item->setForeground(IsDark(palette) ? kDoubleOnDark : kDouble);
  } else {
    const QColor chosen = ToColour(settings.hgFont[1].forecolour, palette);
    item->setForeground(ReadableOn(palette.color(QPalette::Window), chosen));
  }
  if (call.IsBid() && call.Denomination() != BidStrain::NoTrump) {
    const Suit suit = ToSuit(ToStrain(call.Denomination()));
    const QString symbol = ToQt(SuitSymbol[suit]);
    item->setText(QString::number(call.Level()) + symbol);
    item->setData(CallDelegate::kSymbolRole, symbol);
    item->setData(CallDelegate::kSymbolColourRole,
                  SuitColourOnWindow(suit, settings.suitColour, palette));
    item->setData(Qt::AccessibleTextRole,
                  QStringLiteral("%1 %2").arg(call.Level()).arg(ToQt(SuitName[suit])));
  }
  return item;
}

QTableWidget* MakeGrid(QWidget* parent) {
  auto* grid = new QTableWidget(0, kSeats, parent);
  grid->setObjectName(QStringLiteral("flexBids"));
  grid->setAccessibleName(AuctionPane::tr("Auction"));
  grid->setItemDelegate(new CallDelegate(grid));
  grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grid->setSelectionMode(QAbstractItemView::NoSelection);
  grid->setShowGrid(false);
  grid->setFrameShape(QFrame::NoFrame);
  grid->setTabKeyNavigation(false);
  grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  grid->setHorizontalHeader(new SeatHeader(grid));
  grid->verticalHeader()->hide();
  grid->verticalHeader()->setMinimumSectionSize(1);
  grid->horizontalHeader()->setMinimumSectionSize(1);
  grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  grid->viewport()->setAutoFillBackground(false);
  return grid;
}

}  // namespace

AuctionPane::AuctionPane(QWidget* parent)
    : Section(QStringLiteral("fraAuction"), parent),
      cmdBid(new QToolButton(this)),
      flexBids(MakeGrid(this)) {
  SetTitle(tr("Auction"));
  cmdBid->setObjectName(QStringLiteral("cmdBid"));
  cmdBid->setAccessibleName(tr("Show the auction"));
  cmdBid->setAutoRaise(true);
  cmdBid->setCheckable(true);
  cmdBid->setFocusPolicy(Qt::StrongFocus);
  connect(cmdBid, &QToolButton::toggled, this, &AuctionPane::Expand);
  TitleRow()->addWidget(cmdBid);
  Body()->addWidget(flexBids);
  cmdBid->setChecked(true);
}

void AuctionPane::Expand(bool expanded) {
  cmdBid->setText(expanded ? QStringLiteral("v") : QStringLiteral("^"));
  cmdBid->setToolTip(expanded ? tr("Hide the auction") : tr("Show the auction"));
  flexBids->setVisible(expanded);
}

QList<QWidget*> AuctionPane::TabOrder() const {
  return {cmdBid, flexBids};
}

void AuctionPane::Show(const Session& session, const AuctionEntry* entry, const Board* recorded) {
  const Board& board = recorded != nullptr ? *recorded : session.board;
  SetTitle(recorded != nullptr ? tr("Recorded auction") : tr("Auction"));
  flexBids->setVisible(entry != nullptr || cmdBid->isChecked());
  ShowHeads(session.board);
  ShowCalls(session, entry != nullptr ? entry->Calls() : board.calls);
}

void AuctionPane::ShowHeads(const Board& board) {
  for (const Seat seat : kAllSeats) {
    const QString name = ToQt(SeatName[seat]);
    const bool vulnerable = IsVulnerable(board.Vulnerability(), SideOf(seat));
    auto* head = new QTableWidgetItem(vulnerable ? tr("%1 (v)").arg(name) : name);
    head->setToolTip(vulnerable ? tr("%1, vulnerable").arg(name)
                                : tr("%1, not vulnerable").arg(name));
    head->setData(Qt::AccessibleTextRole, head->toolTip());
    if (vulnerable) {
      head->setBackground(IsDark(palette()) ? kVulnerableOnDark : kVulnerable);
      head->setForeground(QColor(Qt::white));
    }
    flexBids->setHorizontalHeaderItem(ColumnOf(seat), head);
  }
}

void AuctionPane::ShowCalls(const Session& session, const CallList& calls) {
  const int offset = ColumnOf(session.board.Dealer());
  const int rows = std::max(kLeastRows, (offset + calls.Count() + kSeats - 1) / kSeats);
  const QFont font = FontForCalls(session.settings.hgFont[1], fontMetrics());
  flexBids->clearContents();
  flexBids->setRowCount(rows);
  flexBids->setFont(font);
  const int rowHeight = QFontMetrics(font).height() + 4;
  flexBids->verticalHeader()->setDefaultSectionSize(rowHeight);
  for (int i = 0; i < calls.Count(); ++i) {
    const int place = offset + i;
    flexBids->setItem(place / kSeats, place % kSeats,
                      MakeCall(calls, i, session.settings, palette()));
  }
  QFont headFont = this->font();
  headFont.setBold(true);
  headFont.setPointSizeF(headFont.pointSizeF() * 0.9);
  flexBids->horizontalHeader()->setFont(headFont);
  const int headHeight = QFontMetrics(headFont).height() + 8;
  flexBids->horizontalHeader()->setFixedHeight(headHeight);
  const int most = std::max(kMostRows, window()->height() / kPartOfWindow / rowHeight);
  flexBids->setFixedHeight(headHeight + rowHeight * std::min(rows, most));
  flexBids->scrollToBottom();
}

}  // namespace tricklet::ui
