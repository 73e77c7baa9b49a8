#include "core/trick.h"

namespace tricklet {

PerSuit<Holding> Trick::LegalCards(const PerSuit<Holding>& hand) const {
  if (CardsInTrick == 0 || hand[LedSuit].Empty()) return hand;
  PerSuit<Holding> legal;
  legal[LedSuit] = hand[LedSuit];
  return legal;
}

void Trick::Add(Card card, Seat seat, Strain trumps) {
  if (CardsInTrick == 0) {
    LedSuit = card.suit;
    BestRank.reset();
    BestTrump.reset();
  }
  ++CardsInTrick;
  if (card.suit == LedSuit) {
    // Once a plain suit has been ruffed, its own cards cannot win any more.
    if (BestTrump || (BestRank && *BestRank < card.rank)) return;
    BestRank = card.rank;
    TrickWinner = seat;
  } else if (ToStrain(card.suit) == trumps && (!BestTrump || card.rank < *BestTrump)) {
    BestTrump = card.rank;
    TrickWinner = seat;
  }
}

}  // namespace tricklet
