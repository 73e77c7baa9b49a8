#include "core/trick.h"

#include <bit>

namespace tricklet {

PerSuit<Holding> Trick::LegalCards(const PerSuit<Holding>& hand) const {
  if (cardsInTrick == 0 || hand[ledSuit].Empty()) return hand;
  PerSuit<Holding> legal;
  legal[ledSuit] = hand[ledSuit];
  return legal;
}

void Trick::Add(Card card, Seat seat, Strain trumps) {
  if (cardsInTrick == 0) {
    ledSuit = card.suit;
    bestRank.reset();
    bestTrump.reset();
  }
  ++cardsInTrick;
  if (card.suit == ledSuit) {
    // Once a plain suit has been ruffed, its own cards cannot win any more.
    if (bestTrump || (bestRank && *bestRank < card.rank)) return;
    bestRank = card.rank;
    trickWinner = seat;
  } else if (ToStrain(card.suit) == trumps && (!bestTrump || card.rank < *bestTrump)) {
    bestTrump = card.rank;
    trickWinner = seat;
  }
}

std::optional<Card> OnlyCardOf(const PerSuit<Holding>& cards) {
  std::optional<Card> only;
  for (const Suit suit : kAllSuits) {
    if (cards[suit].Empty()) continue;
    if (only || cards[suit].Count() > 1) return std::nullopt;
    only = Card{suit, static_cast<Rank>(std::countr_zero(cards[suit].Bits()))};
  }
  return only;
}

}  // namespace tricklet
