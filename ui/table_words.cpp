#include "ui/table_words.h"

#include <QCoreApplication>

#include "core/statistics.h"
#include "ui/text.h"

namespace tricklet::ui {
namespace {

struct Words {
  Q_DECLARE_TR_FUNCTIONS(TableView)
};

QString Role(const Board& board, const Settings& settings, Seat seat) {
  const bool contract = !board.Contract.empty() && board.Contract != kAllPass;
  if (!contract) return {};
  if (seat == board.Declarer && settings.CaptionDeclarer) return Words::tr("Declarer");
  if (seat == PartnerOf(board.Declarer) && settings.CaptionDummy) return Words::tr("Dummy");
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

}  // namespace

PerSeat<QString> TableCaptions(const Board& board, const Settings& settings) {
  PerSeat<QString> captions;
  if (!HasCards(board.Hands)) return captions;
  const PerSeat<std::string> edited = GetCaptionsEdit(GetStats(board.Hands), settings);
  for (const Seat seat : kAllSeats) {
    // The parts end in blanks of their own.
    captions[seat] = (ToQt(edited[seat]) + u' ' + Role(board, settings, seat)).simplified();
  }
  return captions;
}

QStringList BoardLine(const Board& board) {
  if (board.BoardNumber == 0) return {};
  return {Words::tr("Board %1").arg(board.BoardNumber)};
}

QStringList DealerLines(const Board& board) {
  return {Words::tr("Dealer %1").arg(ToQt(SeatName[board.Dealer()])),
          ToQt(VulShort[board.Vulnerability()])};
}

QString HoldingLine(Holding holding) {
  if (holding.Empty()) return QString(QChar(0x2013));
  return ToQt(HoldingText(holding)).trimmed();
}

QString DescribeTable(const Board& board) {
  QStringList parts = BoardLine(board);
  parts << DealerLines(board).front();
  parts << ToQt(VulText[board.Vulnerability()]);
  for (const Seat seat : kAllSeats) {
    bool cards = false;
    for (const Suit suit : kAllSuits) cards = cards || !board.Hands[seat][suit].Empty();
    parts << ToQt(SeatName[seat]) + QStringLiteral(": ") +
                 (cards ? DescribeHand(board.Hands[seat]) : Words::tr("no cards"));
  }
  return parts.join(QStringLiteral(". ")) + u'.';
}

}  // namespace tricklet::ui
