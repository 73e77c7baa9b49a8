#include "conditions/shuffle.h"

#include <utility>

namespace tricklet {

Shuffle::Shuffle(const Predealt& predealt, const std::array<Seat, kSeats>& seats)
    : seats_(seats), given_(BitsOf(predealt.cards)) {
  std::size_t count = 0;
  for (int index = 0; index < kCardsInPack; ++index) {
    const Card card = Card::FromIndex(index);
    if (SeatHolding(predealt.cards, card) >= 0) continue;
    free_.at(count++) = static_cast<std::uint8_t>(IndexOf(card.suit) * 16 + IndexOf(card.rank));
  }
  for (std::size_t place = 0; place < seats_.size(); ++place) {
    const int missing = kCardsInHand - CardsIn(predealt.cards[seats_.at(place)]);
    bounds_.at(place + 1) = static_cast<std::uint8_t>(bounds_.at(place) + missing);
  }
  if (predealt.AnyLength()) lengths_ = std::make_shared<const LengthDraw>(predealt);
}

void Shuffle::DealHand(std::size_t place, RandomSource& random) {
  const auto seat = static_cast<std::size_t>(seats_[place]);
  const std::size_t all = bounds_[kSeats];
  HandBits& hand = deal_[seat];
  hand = given_[seat];
  for (std::size_t i = bounds_[place]; i < bounds_[place + 1]; ++i) {
    if (place + 1 < seats_.size()) {  // the last hand gets what is left
      std::swap(free_[i], free_[i + random.Below(static_cast<std::uint32_t>(all - i))]);
    }
    const unsigned card = free_[i];
    hand[card >> 4U] = static_cast<std::uint16_t>(hand[card >> 4U] | 1U << (card & 15U));
  }
}

void Shuffle::Deal(RandomSource& random) {
  if (lengths_) return DealByLengths(random);
  for (std::size_t place = 0; place < seats_.size(); ++place) DealHand(place, random);
}

void Shuffle::DealByLengths(RandomSource& random) {
  const LengthDraw::Lengths lengths = lengths_->Draw(random);
  deal_ = given_;
  std::size_t start = 0;
  std::size_t end = 0;
  // The free cards lie suit by suit: they are only ever exchanged within their suit here.
  for (const Suit suit : kAllSuits) {
    for (const Seat seat : kAllSeats) end += static_cast<std::size_t>(lengths[seat][suit]);
    for (const Seat seat : kAllSeats) {
      HandBits& hand = deal_[static_cast<std::size_t>(seat)];
      for (int i = 0; i < lengths[seat][suit]; ++i, ++start) {
        std::swap(free_[start],
                  free_[start + random.Below(static_cast<std::uint32_t>(end - start))]);
        const unsigned card = free_[start];
        hand[card >> 4U] = static_cast<std::uint16_t>(hand[card >> 4U] | 1U << (card & 15U));
      }
    }
  }
}

}  // namespace tricklet
