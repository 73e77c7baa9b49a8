#include "ui/panes/auction_pane.h"

#include <algorithm>

#include <QApplication>
#include <QHeaderView>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/panes/call_delegate.h"
#include "ui/panes/seat_header.h"
#include "ui/style/qt_text.h"
#include "ui/style/symbols.h"
#include "ui/style/theme.h"
#include "ui/table/table_style.h"

namespace tricklet::ui {
namespace {

// Room for these rows is kept, so that the pane below does not jump from board to board: a longer
// auction has its rows closer together. There are more of them in a higher window.
constexpr int kLeastRows = 3;
constexpr int kKeptPartOfWindow = 6;
// An auction that is longer still scrolls; in a presentation only one that takes more than a third
// of the window's height and has more rows than these, for there a class is to see it whole.
constexpr int kMostRows = 8;
constexpr int kPartOfWindow = 3;
constexpr int kRowPadding = 4;
constexpr int kLeastRowPadding = 2;  // of calls as small as the heads
constexpr double kHeadFont = 0.88;   // of the pane's, so that "North vul" fits

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
    : FoldingSection(QStringLiteral("fraAuction"), QStringLiteral("cmdBid"),
                     {tr("Show the auction"), tr("Show the auction"), tr("Hide the auction")},
                     parent),
      flexBids(MakeGrid(this)) {
  SetTitle(tr("Auction"));
  ContentLayout()->addWidget(flexBids);
}

QList<QWidget*> AuctionPane::TabOrder() const {
  return {Button(), flexBids};
}

/// The heads follow when the auction is shown, as they do when the column's font changes.
void AuctionPane::SetFromAfar(bool afar) {
  FoldingSection::SetFromAfar(afar);
  afar_ = afar;
}

void AuctionPane::Show(const Session& session, const AuctionEntry* entry, const Board* recorded,
                       const CallRemarks& remarks) {
  const Board& board = recorded != nullptr ? *recorded : session.board;
  SetTitle(recorded != nullptr ? tr("Recorded auction") : tr("Auction"));
  SetUnfolded(session.settings.showAuction);
  Content()->setVisible(entry != nullptr || Unfolded());
  const bool calling = entry != nullptr && !entry->Over();
  ShowHeads(session.board, calling ? std::optional(entry->ToCall()) : std::nullopt);
  ShowCalls(session, entry != nullptr ? entry->Calls() : board.calls);
  if (entry == nullptr) ShowRemarks(session, remarks, board.NumCalls());
}

/// The seat to call stands out by a triangle as well as by its colour.
void AuctionPane::ShowHeads(const Board& board, std::optional<Seat> toCall) {
  for (const Seat seat : kAllSeats) {
    const QString name = ToQt(SeatName[seat]);
    const bool vulnerable = IsVulnerable(board.Vulnerability(), SideOf(seat));
    const bool calls = seat == toCall;
    const auto text = [&](const QString& seatText) {
      const QString marked = vulnerable ? tr("%1 vul").arg(seatText) : seatText;
      return calls ? QStringLiteral("\u25B8 ") + marked : marked;
    };
    auto* head = new QTableWidgetItem(text(name));
    head->setData(SeatHeader::kShortRole, text(name.left(1)));
    QString spoken =
        vulnerable ? tr("%1, vulnerable").arg(name) : tr("%1, not vulnerable").arg(name);
    if (calls) spoken += tr(", to call");
    head->setToolTip(spoken);
    head->setData(Qt::AccessibleTextRole, spoken);
    if (calls) {
      head->setBackground(kToActYellow);
      head->setForeground(QColor(Qt::black));
    } else if (vulnerable) {
      head->setBackground(IsDark(palette()) ? kVulnerableOnDark : kVulnerable);
      head->setForeground(QColor(Qt::white));
    }
    flexBids->setHorizontalHeaderItem(ColumnOf(seat), head);
  }
}

/// The setting's font, larger by as much as the column's font has grown beyond the window's, and
/// small enough for the longest call to fit into a column.
QFont AuctionPane::FontForCalls(const FontSetting& setting) const {
  QFont font = ToFont(setting);
  font.setPointSizeF(font.pointSizeF() * this->font().pointSizeF() /
                     QApplication::font().pointSizeF());
  const int width = fontMetrics().height() * kCallWidth;
  const int needed = QFontMetrics(font).horizontalAdvance(QStringLiteral("Rdbl "));
  if (needed > width) font.setPointSizeF(font.pointSizeF() * width / needed);
  return font;
}

void AuctionPane::ShowCalls(const Session& session, const CallList& calls) {
  const int offset = ColumnOf(session.board.Dealer());
  callFont_ = FontForCalls(session.settings.hgFont[1]);
  flexBids->clearContents();
  flexBids->setRowCount(std::max(kLeastRows, (offset + calls.Count() + kSeats - 1) / kSeats));
  for (int i = 0; i < calls.Count(); ++i) {
    const int place = offset + i;
    flexBids->setItem(place / kSeats, place % kSeats,
                      MakeCall(calls, i, session.settings, palette()));
  }
  SetSizes();
}

void AuctionPane::ShowRemarks(const Session& session, const CallRemarks& remarks, int calls) {
  const int offset = ColumnOf(session.board.Dealer());
  for (int i = 0; i < calls && i < static_cast<int>(remarks.size()); ++i) {
    const CallRemark& remark = remarks[static_cast<std::size_t>(i)];
    QTableWidgetItem* item = flexBids->item((offset + i) / kSeats, (offset + i) % kSeats);
    if (remark.Empty() || item == nullptr) continue;
    const QVariant spoken = item->data(Qt::AccessibleTextRole);
    const QString call = spoken.isValid() ? spoken.toString() : item->text();
    const QString said = remark.meaning.empty()
                             ? tr("%1, alerted").arg(call)
                             : QStringLiteral("%1: %2").arg(call, ToQt(remark.meaning));
    item->setData(CallDelegate::kDotRole, true);
    item->setData(Qt::AccessibleTextRole, said);
    item->setToolTip(QStringLiteral("<qt>%1</qt>").arg(said.toHtmlEscaped()));  // wraps its lines
  }
}

void AuctionPane::SetSizes() {
  QFont headFont = font();
  headFont.setBold(true);
  headFont.setPointSizeF(headFont.pointSizeF() * (afar_ ? kAfar : kHeadFont));
  flexBids->horizontalHeader()->setFont(headFont);
  const int headHeight = QFontMetrics(headFont).height() + 8;
  flexBids->horizontalHeader()->setFixedHeight(headHeight);

  const int rows = flexBids->rowCount();
  const int comfortable = QFontMetrics(callFont_).height() + kRowPadding;
  QFont fitting = callFont_;
  fitting.setPointSizeF(std::min(callFont_.pointSizeF(), headFont.pointSizeF()));
  const int least = std::min(comfortable, QFontMetrics(fitting).height() + kLeastRowPadding);
  const int kept =
      comfortable * std::max(kLeastRows, window()->height() / kKeptPartOfWindow / comfortable);
  const int rowHeight = std::clamp(kept / rows, least, comfortable);
  const double size =
      callFont_.pointSizeF() * (rowHeight - kRowPadding) / (comfortable - kRowPadding);
  fitting.setPointSizeF(std::max(size, fitting.pointSizeF()));
  flexBids->setFont(fitting);
  flexBids->verticalHeader()->setDefaultSectionSize(rowHeight);
  const int most = std::max(kMostRows, window()->height() / kPartOfWindow / rowHeight);
  const int wanted = afar_ ? rowHeight * std::min(rows, most) : 0;
  flexBids->setFixedHeight(headHeight + std::max(kept, wanted));
  flexBids->scrollToBottom();
}

void AuctionPane::showEvent(QShowEvent* event) {
  FoldingSection::showEvent(event);
  window()->installEventFilter(this);
  SetSizes();
}

/// The room that is kept depends on the window's height.
bool AuctionPane::eventFilter(QObject* watched, QEvent* event) {
  if (watched == window() && event->type() == QEvent::Resize) SetSizes();
  return FoldingSection::eventFilter(watched, event);
}

}  // namespace tricklet::ui
