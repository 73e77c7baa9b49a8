#include "formats/contents/contents.h"

#include <algorithm>

#include "core/statistics.h"

namespace tricklet {
namespace {

bool HoldsACardTwice(const HandTable& hands) {
  return std::any_of(kAllSuits.begin(), kAllSuits.end(), [&hands](Suit suit) {
    Holding seen;
    for (const Seat seat : kAllSeats) {
      const Holding held = hands[seat][suit];
      if (seen - held != seen) return true;
      seen = seen | held;
    }
    return false;
  });
}

}  // namespace

void NoteDealTroubles(FoundGame& game) {
  const HandTable& hands = game.board.hands;
  if (!HasCards(hands)) {
    game.troubles.Add(DealTrouble::NoCards);
    return;
  }
  const Statistics stats = GetStats(hands);
  const auto& counts = stats.seatCardCount;
  const bool tooMany =
      std::any_of(counts.begin(), counts.end(), [](int count) { return count > kCardsInHand; });
  if (tooMany || HoldsACardTwice(hands)) {
    game.troubles.Add(DealTrouble::Impossible);
  } else if (!stats.allHandsComplete) {
    game.troubles.Add(DealTrouble::Incomplete);
  }
}

}  // namespace tricklet
