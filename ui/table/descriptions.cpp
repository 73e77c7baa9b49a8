#include "ui/table/descriptions.h"

#include <QCoreApplication>

#include "core/statistics.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

struct Words {
  Q_DECLARE_TR_FUNCTIONS(TableView)
};

const QString kBetween = QStringLiteral(" \u00B7 ");

QString Role(const Board& board, const Settings& settings, Seat seat) {
  const bool contract = !board.contract.empty() && board.contract != kAllPass;
  if (!contract) return {};
  if (seat == board.declarer && settings.captionDeclarer) return Words::tr("Declarer");
  if (seat == PartnerOf(board.declarer) && settings.captionDummy) return Words::tr("Dummy");
  return {};
}

QString DescribeHand(const PerSuit<Holding>& hand) {
  QStringList suits;
  for (const Suit suit : kAllSuits) {
    const QString held =
        hand[suit].Empty() ? Words::tr("void") : ToQt(HoldingText(hand[suit])).trimmed();
    suits << ToQt(SuitName[suit]).toLower() + u' ' + held;
  }
  return suits.join(QStringLiteral("; "));
}

QStringList DescribeHands(const HandTable& hands) {
  QStringList parts;
  for (const Seat seat : kAllSeats) {
    bool cards = false;
    for (const Suit suit : kAllSuits) cards = cards || !hands[seat][suit].Empty();
    parts << ToQt(SeatName[seat]) + QStringLiteral(": ") +
                 (cards ? DescribeHand(hands[seat]) : Words::tr("no cards"));
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
    if (seat == now.trickWinner) text += u' ' + Words::tr("(winning)");
    cards << text;
  }
  if (cards.isEmpty()) return Words::tr("No card on the table");
  return Words::tr("On the table: %1").arg(cards.join(QStringLiteral(", ")));
}

}  // namespace

PerSeat<QString> TableCaptions(const Board& board, const Settings& settings) {
  PerSeat<QString> captions;
  if (!HasCards(board.hands)) return captions;
  const PerSeat<std::string> edited = GetCaptionsEdit(GetStats(board.hands), settings);
  for (const Seat seat : kAllSeats) {
    // The parts end in blanks of their own.
    captions[seat] = (ToQt(edited[seat]) + u' ' + Role(board, settings, seat)).simplified();
  }
  return captions;
}

PerSeat<QString> PlayCaptions(const Board& board, const Settings& settings,
                              std::optional<Seat> onPlay) {
  PerSeat<QString> captions;
  for (const Seat seat : kAllSeats) {
    QStringList words;
    const QString role = Role(board, settings, seat);
    if (!role.isEmpty()) words << role;
    if (seat == onPlay) words << Words::tr("to play");
    captions[seat] = (ToQt(SeatName[seat]) + QStringLiteral(": ") + words.join(kBetween)).trimmed();
  }
  return captions;
}

PerSeat<QString> EditCaptions(const Board& board, const Settings& settings) {
  Settings named = settings;
  named.captionPlayer = true;
  PerSeat<QString> captions;
  const PerSeat<std::string> edited = GetCaptionsEdit(GetStats(board.hands), named);
  for (const Seat seat : kAllSeats) captions[seat] = ToQt(edited[seat]).simplified();
  return captions;
}

QString PackCaption(const Board& board) {
  int cards = 0;
  for (const Holding missing : GetStats(board.hands).missingCards) cards += missing.Count();
  return cards == 1 ? Words::tr("Pack: 1 card") : Words::tr("Pack: %1 cards").arg(cards);
}

PerSeat<QString> CallCaptions(const Board& board, const Settings& settings, Seat toCall) {
  PerSeat<QString> captions = TableCaptions(board, settings);
  QString& caption = captions[toCall];
  caption = caption.isEmpty() ? ToQt(SeatName[toCall]) + QStringLiteral(": ") : caption + kBetween;
  caption += Words::tr("to call");
  return captions;
}

QStringList BoardLine(const Board& board) {
  if (board.boardNumber == 0) return {};
  return {Words::tr("Board %1").arg(board.boardNumber)};
}

QStringList DealerLines(const Board& board) {
  return {Words::tr("Dealer %1").arg(ToQt(SeatName[board.Dealer()])),
          ToQt(VulShort[board.Vulnerability()])};
}

QString HoldingLine(Holding holding) {
  if (holding.Empty()) return QString(QChar(0x2013));
  return ToQt(HoldingText(holding)).trimmed();
}

QString DescribeTable(const Board& board, std::optional<Seat> toCall) {
  QStringList parts = BoardLine(board);
  parts << DealerLines(board).front();
  parts << ToQt(VulText[board.Vulnerability()]);
  if (toCall) parts << Words::tr("%1 to call").arg(ToQt(SeatName[*toCall]));
  parts << DescribeHands(board.hands);
  return parts.join(QStringLiteral(". ")) + u'.';
}

QString DescribeEdit(const Board& board, const TableEdit& edit) {
  QStringList parts = BoardLine(board);
  parts << Words::tr("Editing");
  if (const auto card = edit.Chosen()) {
    parts << Words::tr("%1 %2 chosen").arg(ToQt(SuitName[card->suit]), ToQt(RankText[card->rank]));
  }
  if (const auto frame = edit.Receiver()) {
    const auto seat = SeatOf(*frame);
    parts << Words::tr("%1 waits for cards").arg(seat ? ToQt(SeatName[*seat]) : Words::tr("Pack"));
  }
  parts << DescribeHands(board.hands);
  const PerSuit<Holding> pack = GetStats(board.hands).missingCards;
  parts << Words::tr("Pack") + QStringLiteral(": ") + DescribeHand(pack);
  return parts.join(QStringLiteral(". ")) + u'.';
}

QString DescribePlay(const Board& board, const PlaySnapshot& play) {
  const PlayState& now = play.now;
  QStringList parts = BoardLine(board);
  parts << ToQt(ContractLabel(board));
  if (now.onPlay) parts << Words::tr("%1 to play").arg(ToQt(SeatName[*now.onPlay]));
  if (play.finished) parts << play.score;
  parts << DescribeTrick(now);
  parts << play.tricks[Side::NorthSouth] << play.tricks[Side::EastWest];
  parts << DescribeHands(now.cardsLeft);
  return parts.join(QStringLiteral(". ")) + u'.';
}

}  // namespace tricklet::ui
