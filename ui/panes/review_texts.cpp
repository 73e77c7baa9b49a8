#include "ui/panes/review_texts.h"

#include <cstdlib>

#include <QCoreApplication>

#include "review/cost.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

/// The context of the texts for translators.
struct ReviewTexts {
  Q_DECLARE_TR_FUNCTIONS(ReviewTexts)
};

QString TricksText(int tricks) {
  return tricks == 1 ? ReviewTexts::tr("1 trick") : ReviewTexts::tr("%1 tricks").arg(tricks);
}

QString NameOf(Side side) {
  return side == Side::NorthSouth ? ReviewTexts::tr("North-South") : ReviewTexts::tr("East-West");
}

/// What declarer ended with before and after a card.
Cost CostOfCard(const ReviewedCard& card, const PlayReview& review, const PlayedAt& at) {
  const bool declarers = SideOf(card.seat) == SideOf(review.declarer);
  const int before = card.declarerTricks + (declarers ? card.given : -card.given);
  return CostOf(at.traveller, at.row, at.board, SideOf(card.seat), before, card.declarerTricks);
}

/// "720 points, 40 %".
QString PointsAndCost(const Cost& cost) {
  Cost points;
  points.points = cost.points;
  QString text = ToQt(CostText(points));
  if (cost.unit != Cost::Unit::None) text += QStringLiteral(", ") + ToQt(CostText(cost));
  return text;
}

}  // namespace

QString TricksTitle(const PlayReview& review) {
  return ReviewTexts::tr("Tricks %1 can still end with").arg(ToQt(SeatName[review.declarer]));
}

QString NeedText(const PlayReview& review) {
  return ReviewTexts::tr("%1 needed").arg(review.needed);
}

QString TricksAfterText(const PlayReview& review, int cards) {
  if (cards <= 0) {
    return ReviewTexts::tr("Before the lead: %1").arg(TricksText(review.doubleDummy));
  }
  const ReviewedCard& card = review.cards.at(static_cast<std::size_t>(cards) - 1);
  QString text = ReviewTexts::tr("Card %1, the %2 by %3: %4")
                     .arg(QString::number(cards), ToQt(CardText(card.card)),
                          ToQt(SeatName[card.seat]), TricksText(card.declarerTricks));
  if (card.given == 0) return text;
  return text + ReviewTexts::tr(", %1 given away").arg(card.given);
}

QString SpokenTricks(const PlayReview& review, std::optional<int> place) {
  QStringList parts;
  if (place) parts += TricksAfterText(review, *place);
  if (place != 0) parts += TricksAfterText(review, 0);
  for (std::size_t i = 0; i < review.cards.size(); ++i) {
    const int cards = static_cast<int>(i) + 1;
    if (review.cards[i].given > 0 && place != cards) parts += TricksAfterText(review, cards);
  }
  const int last = static_cast<int>(review.cards.size());
  if (last > 0 && place != last && review.cards.back().given == 0) {
    parts += TricksAfterText(review, last);
  }
  parts += NeedText(review);
  return parts.join(QStringLiteral(". ")) + u'.';
}

QString MistakeText(const ReviewedCard& card, const PlayReview& review, const PlayedAt& at) {
  const Cost cost = CostOfCard(card, review, at);
  const QString given =
      card.given == 1 ? ReviewTexts::tr("a trick") : ReviewTexts::tr("%1 tricks").arg(card.given);
  const bool nothing = cost.unit == Cost::Unit::None ? cost.points == 0 : cost.compared == 0;
  return ReviewTexts::tr("The %1 gave away %2: it cost %3")
      .arg(ToQt(CardText(card.card)), given,
           nothing ? ReviewTexts::tr("nothing") : ToQt(CostText(cost)));
}

QStringList ResultTexts(const PlayReview& review, const PlayedAt& at) {
  if (!review.tricks) return {};
  QStringList texts{ReviewTexts::tr("Result %1, double-dummy %2")
                        .arg(TricksText(*review.tricks), TricksText(review.doubleDummy))};
  if (review.claimed != 0) {
    texts += (review.claimed > 0 ? ReviewTexts::tr("The claim took %1 more than could be had")
                                 : ReviewTexts::tr("The claim took %1 less than could be had"))
                 .arg(TricksText(std::abs(review.claimed)));
  }
  if (*review.tricks == review.doubleDummy) return texts;
  // The side that has come off worse.
  const bool declarers = *review.tricks < review.doubleDummy;
  const Side side = declarers ? SideOf(review.declarer) : SideOf(SeatAfter(review.declarer));
  const Cost cost =
      CostOf(at.traveller, at.row, at.board, side, review.doubleDummy, *review.tricks);
  texts += ReviewTexts::tr("It cost %1 %2").arg(NameOf(side), PointsAndCost(cost));
  return texts;
}

}  // namespace tricklet::ui
