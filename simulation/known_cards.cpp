#include "simulation/known_cards.h"

#include "generate/deal.h"

namespace tricklet {
namespace {

int CountOf(const PerSuit<Holding>& hand) {
  int count = 0;
  for (const Holding holding : hand) count += holding.Count();
  return count;
}

/// How many seats can hold `card`; `last` is one of them.
int SeatsFor(const KnownCards& known, Card card, Seat& last) {
  int count = 0;
  for (const Seat seat : kAllSeats) {
    if (known.shownOut[seat][card.suit] || CountOf(known.hands[seat]) >= kCardsInHand) continue;
    last = seat;
    ++count;
  }
  return count;
}

/// Gives each card that only one seat can hold to it, which may leave no room for others. False
/// when nobody can hold a card.
bool PlaceForced(KnownCards& known) {
  for (bool placed = true; placed;) {
    placed = false;
    for (int index = 0; index < kCardsInPack; ++index) {
      const Card card = Card::FromIndex(index);
      if (SeatHolding(known.hands, card) >= 0) continue;
      Seat seat = Seat::North;
      const int seats = SeatsFor(known, card, seat);
      if (seats == 0) return false;
      if (seats > 1) continue;
      AddCard(known.hands, card, seat);
      placed = true;
    }
  }
  return true;
}

}  // namespace

Completion::Completion(const KnownCards& known) : known_(known) {
  for (const auto& suits : known.shownOut) {
    for (const bool out : suits) restricted_ = restricted_ || out;
  }
  if (restricted_) possible_ = PlaceForced(known_);
}

bool Completion::Agrees(const HandTable& hands) const {
  for (const Seat seat : kAllSeats) {
    for (const Suit suit : kAllSuits) {
      if (known_.shownOut[seat][suit] && hands[seat][suit] != known_.hands[seat][suit]) {
        return false;
      }
    }
  }
  return true;
}

std::optional<HandTable> Completion::Deal(RandomSource& random) const {
  if (!possible_) return std::nullopt;
  for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
    HandTable hands = known_.hands;
    if (!Random(hands, random)) return std::nullopt;
    if (!restricted_ || Agrees(hands)) return hands;
  }
  return std::nullopt;
}

}  // namespace tricklet
