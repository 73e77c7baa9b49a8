#include "ui/table/descriptions.h"

#include "core/statistics.h"
#include "ui/style/qt_text.h"
#include "ui/table/table_words.h"

namespace tricklet::ui {
namespace {

QString DescribeHand(const PerSuit<Holding>& hand) {
  QStringList suits;
  for (const Suit suit : kAllSuits) {
    const QString held =
        hand[suit].Empty() ? TableWords::tr("void") : ToQt(HoldingText(hand[suit])).trimmed();
    suits << ToQt(SuitName[suit]).toLower() + u' ' + held;
  }
  return suits.join(QStringLiteral("; "));
}

QStringList DescribeHands(const HandTable& hands, const PerSeat<bool>& hidden = {}) {
  QStringList parts;
  for (const Seat seat : kAllSeats) {
    bool cards = false;
    for (const Suit suit : kAllSuits) cards = cards || !hands[seat][suit].Empty();
    parts << ToQt(SeatName[seat]) + QStringLiteral(": ") +
                 (!cards         ? TableWords::tr("no cards")
                  : hidden[seat] ? TableWords::tr("hidden")
                                 : DescribeHand(hands[seat]));
  }
  return parts;
}

QString DescribeTrick(const PlayState& now) {
  QStringList cards;
  for (const Seat seat : kAllSeats) {
    const auto& card = now.trickCards[seat];
    if (!card) continue;
    QString text = ToQt(SeatName[seat]) + u' ' + ToQt(SuitName[card->suit]).toLower() + u' ' +
                   ToQt(RankText[card->rank]);
    if (seat == now.trickWinner) text += u' ' + TableWords::tr("(winning)");
    cards << text;
  }
  if (cards.isEmpty()) return TableWords::tr("No card on the table");
  return TableWords::tr("On the table: %1").arg(cards.join(QStringLiteral(", ")));
}

}  // namespace

QStringList BoardLine(const Board& board) {
  if (board.boardNumber == 0) return {};
  return {TableWords::tr("Board %1").arg(board.boardNumber)};
}

QStringList DealerLines(const Board& board) {
  return {TableWords::tr("Dealer %1").arg(ToQt(SeatName[board.Dealer()])),
          ToQt(VulShort[board.Vulnerability()])};
}

QString HoldingLine(Holding holding) {
  if (holding.Empty()) return QString(QChar(0x2013));
  return ToQt(HoldingText(holding)).trimmed();
}

QString DescribeTable(const Board& board, std::optional<Seat> toCall, const PerSeat<bool>& hidden) {
  QStringList parts = BoardLine(board);
  parts << DealerLines(board).front();
  parts << ToQt(VulText[board.Vulnerability()]);
  if (toCall) parts << TableWords::tr("%1 to call").arg(ToQt(SeatName[*toCall]));
  parts << DescribeHands(board.hands, hidden);
  return parts.join(QStringLiteral(". ")) + u'.';
}

QString DescribeEdit(const Board& board, const TableEdit& edit) {
  QStringList parts = BoardLine(board);
  parts << TableWords::tr("Editing");
  if (const auto card = edit.Chosen()) {
    parts << TableWords::tr("%1 %2 chosen")
                 .arg(ToQt(SuitName[card->suit]), ToQt(RankText[card->rank]));
  }
  if (const auto frame = edit.Receiver()) {
    const auto seat = SeatOf(*frame);
    parts << TableWords::tr("%1 waits for cards")
                 .arg(seat ? ToQt(SeatName[*seat]) : TableWords::tr("Pack"));
  }
  parts << DescribeHands(board.hands);
  const PerSuit<Holding> pack = GetStats(board.hands).missingCards;
  parts << TableWords::tr("Pack") + QStringLiteral(": ") + DescribeHand(pack);
  return parts.join(QStringLiteral(". ")) + u'.';
}

QString DescribePlay(const Board& board, const PlaySnapshot& play, const PerSeat<bool>& hidden) {
  const PlayState& now = play.now;
  QStringList parts = BoardLine(board);
  parts << ToQt(ContractLabel(board));
  if (now.onPlay) parts << TableWords::tr("%1 to play").arg(ToQt(SeatName[*now.onPlay]));
  if (play.finished) parts << play.score;
  parts << DescribeTrick(now);
  parts << play.tricks[Side::NorthSouth] << play.tricks[Side::EastWest];
  parts << DescribeHands(now.cardsLeft, hidden);
  return parts.join(QStringLiteral(". ")) + u'.';
}

}  // namespace tricklet::ui
