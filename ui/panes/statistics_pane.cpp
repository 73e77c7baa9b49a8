#include "ui/panes/statistics_pane.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "core/statistics.h"
#include "ui/style/qt_text.h"
#include "ui/style/symbols.h"

namespace tricklet::ui {
namespace {

constexpr int kPointsRow = 1;
constexpr int kLosersRow = 2;
constexpr int kFirstSuitRow = 3;

QLabel* MakeHead(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  MakeQuiet(label);
  return label;
}

QLabel* MakeValue(Seat seat, const QString& what, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setAlignment(Qt::AlignHCenter);
  label->setToolTip(StatisticsPane::tr("%1 %2").arg(ToQt(SeatName[seat]), what));
  return label;
}

}  // namespace

StatisticsPane::StatisticsPane(QWidget* parent) : Section(QStringLiteral("fraStats"), parent) {
  SetTitle(tr("Statistics"));
  Body()->insertWidget(0, MakeSeparator(this));
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(4);
  grid->setVerticalSpacing(5);
  grid->addWidget(MakeHead(tr("HCP"), this), kPointsRow, 0);
  grid->addWidget(MakeHead(tr("LTC"), this), kLosersRow, 0);
  for (const Suit suit : kAllSuits) {
    symbols_[suit] = new QLabel(this);
    symbols_[suit]->setAccessibleName(ToQt(SuitName[suit]));
    grid->addWidget(symbols_[suit], kFirstSuitRow + IndexOf(suit), 0);
  }
  for (const Seat seat : kAllSeats) {
    const int column = 1 + IndexOf(seat);
    grid->setColumnStretch(column, 1);
    QLabel* head = MakeHead(ToQt(SeatName[seat].substr(0, 1)), this);
    head->setAccessibleName(ToQt(SeatName[seat]));
    grid->addWidget(head, 0, column, Qt::AlignHCenter);
    points_[seat] = MakeValue(seat, tr("HCP"), this);
    losers_[seat] = MakeValue(seat, tr("LTC"), this);
    grid->addWidget(points_[seat], kPointsRow, column);
    grid->addWidget(losers_[seat], kLosersRow, column);
    for (const Suit suit : kAllSuits) {
      lengths_[seat][suit] = MakeValue(seat, ToQt(SuitName[suit]), this);
      grid->addWidget(lengths_[seat][suit], kFirstSuitRow + IndexOf(suit), column);
    }
  }
  pairs_ = new QLabel(this);
  MakeQuiet(pairs_);
  Body()->addLayout(grid);
  Body()->addWidget(pairs_);
}

void StatisticsPane::Show(const Session& session) {
  const Board& board = session.board;
  const Statistics statistics = GetStats(board.hands);
  for (const Suit suit : kAllSuits) {
    symbols_[suit]->setText(ColouredSymbol(suit, session.settings.suitColour, palette()));
  }
  const auto show = [](QLabel* label, int value) {
    label->setNum(value);
    label->setAccessibleName(label->toolTip() + QStringLiteral(": ") + label->text());
  };
  for (const Seat seat : kAllSeats) {
    show(points_[seat], statistics.seatHcp[seat]);
    show(losers_[seat], statistics.seatLtc[seat]);
    for (const Suit suit : kAllSuits) {
      show(lengths_[seat][suit], statistics.suitLength[seat][suit]);
    }
  }
  pairs_->setText(tr("NS losers %1 · EW losers %2")
                      .arg(statistics.pairLtc[Side::NorthSouth])
                      .arg(statistics.pairLtc[Side::EastWest]));
}

}  // namespace tricklet::ui
