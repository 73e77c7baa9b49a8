#include "ui/table/table_news.h"

#include <array>

#include <QStringList>

#include "ui/style/qt_text.h"
#include "ui/table/descriptions.h"
#include "ui/table/table_words.h"

namespace tricklet::ui {
namespace {

QString RankWord(Rank rank) {
  switch (rank) {
    case Rank::Ace:
      return TableWords::tr("ace");
    case Rank::King:
      return TableWords::tr("king");
    case Rank::Queen:
      return TableWords::tr("queen");
    case Rank::Jack:
      return TableWords::tr("jack");
    default:
      return ToQt(RankText[rank]);
  }
}

struct Moved {
  Seat seat;
  Card card;
};

/// The cards that `before` has in its hands and `now` has not.
std::vector<Moved> CardsGone(const HandTable& before, const HandTable& now) {
  std::vector<Moved> gone;
  for (int index = 0; index < kCardsInPack; ++index) {
    const Card card = Card::FromIndex(index);
    for (const Seat seat : kAllSeats) {
      const bool held = before[seat][card.suit].Has(card.rank);
      if (held && !now[seat][card.suit].Has(card.rank)) gone.push_back({seat, card});
    }
  }
  return gone;
}

QStringList TurnWords(const PlaySnapshot& play) {
  if (play.finished) return {play.score};
  if (!play.now.onPlay) return {};
  return {TableWords::tr("%1 to play").arg(ToQt(SeatName[*play.now.onPlay]))};
}

QStringList PlayNews(const PlaySnapshot& before, const PlaySnapshot& now) {
  const auto played = CardsGone(before.now.cardsLeft, now.now.cardsLeft);
  const auto back = CardsGone(now.now.cardsLeft, before.now.cardsLeft);
  QStringList news;
  if (played.size() == 1) {
    news << TableWords::tr("%1 plays the %2")
                .arg(ToQt(SeatName[played[0].seat]), CardWords(played[0].card));
  } else if (back.size() == 1) {
    news << TableWords::tr("%1 takes back the %2")
                .arg(ToQt(SeatName[back[0].seat]), CardWords(back[0].card));
  } else if (before.now.onPlay == now.now.onPlay && before.finished == now.finished) {
    return {};
  }
  if (before.tricks != now.tricks) {
    if (played.size() == 1) {
      news << TableWords::tr("%1 wins the trick").arg(ToQt(SeatName[now.now.trickWinner]));
    }
    news << now.tricks[Side::NorthSouth] << now.tricks[Side::EastWest];
  }
  return news + TurnWords(now);
}

QStringList HiddenNews(const TableScene& before, const TableScene& now) {
  QStringList news;
  for (const Seat seat : kAllSeats) {
    if (before.hidden[seat] == now.hidden[seat]) continue;
    news << (now.hidden[seat] ? TableWords::tr("%1 is hidden") : TableWords::tr("%1 is shown"))
                .arg(ToQt(SeatName[seat]));
  }
  return news;
}

QStringList News(const TableScene& before, const TableScene& now) {
  const bool sameBoard =
      before.board.boardNumber == now.board.boardNumber && before.board.hands == now.board.hands;
  if (!sameBoard) return BoardLine(now.board);
  QStringList news = HiddenNews(before, now);
  if (before.play && now.play) return news + PlayNews(*before.play, *now.play);
  if (now.play) return news + QStringList{ToQt(ContractLabel(now.board))} + TurnWords(*now.play);
  if (before.play) return news + QStringList{TableWords::tr("The play has ended")};
  if (now.toCall && before.toCall != now.toCall) {
    news << TableWords::tr("%1 to call").arg(ToQt(SeatName[*now.toCall]));
  }
  return news;
}

}  // namespace

QString CardWords(Card card) {
  return TableWords::tr("%1 of %2").arg(RankWord(card.rank), ToQt(SuitName[card.suit]).toLower());
}

QString NewsOf(const TableScene& before, const TableScene& now) {
  const QStringList news = News(before, now);
  return news.isEmpty() ? QString() : news.join(QStringLiteral(". ")) + u'.';
}

}  // namespace tricklet::ui
