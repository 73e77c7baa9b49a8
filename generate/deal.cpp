#include "generate/deal.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

#include "generate/hand_type.h"

namespace tricklet {
namespace {

using Hand = PerSuit<Holding>;

constexpr int kHonours = 4;  // of a suit: ace, king, queen, jack
constexpr Holding kHonourRanks = Holding::FromBits((1U << kHonours) - 1);
constexpr Holding kWholeSuit = Holding::FromBits(Holding::kAllBits);

/// 4, 3, 2 or 1; of an honour.
constexpr int PointsOf(Rank honour) {
  return kHonours - IndexOf(honour);
}

int CardsOf(const Hand& hand) {
  int count = 0;
  for (const Holding holding : hand) count += holding.Count();
  return count;
}

/// One of the ranks of `ranks`, which is not empty.
Rank RandomRank(Holding ranks, RandomSource& random) {
  unsigned bits = ranks.Bits();
  for (int skip = RandomBetween(0, ranks.Count() - 1, random); skip > 0; --skip) bits &= bits - 1;
  return static_cast<Rank>(std::countr_zero(bits));
}

/// Makes the limits agree with a hand of 13 cards: no suit so long that the others' minima do not
/// fit, none so short that the others' maxima do not reach.
void Tighten(PerSuit<Limits>& limits) {
  int minima = 0;
  for (const Limits& suit : limits) minima += suit.minimum;
  for (Limits& suit : limits) {
    suit.maximum = std::min(suit.maximum, kCardsInHand - (minima - suit.minimum));
  }
  int maxima = 0;
  for (const Limits& suit : limits) maxima += suit.maximum;
  for (Limits& suit : limits) {
    suit.minimum = std::max(suit.minimum, kCardsInHand - (maxima - suit.maximum));
  }
}

/// Lengths within the limits. They add up to 13 unless the limits leave too little room.
PerSuit<int> ChooseLengths(const PerSuit<Limits>& limits, RandomSource& random) {
  PerSuit<int> lengths;
  PerSuit<double> weights;  // cards of the suit still outside the hand, 0 when it takes no more
  int total = 0;
  for (const Suit suit : kAllSuits) {
    const auto [minimum, maximum] = limits[suit];
    lengths[suit] = minimum;
    weights[suit] = minimum >= maximum ? 0 : kRanks - minimum;
    total += minimum;
  }
  for (; total < kCardsInHand; ++total) {
    const auto suit = static_cast<Suit>(WeightedPick(weights.values_, 0, kSuits - 1, random));
    if (weights[suit] <= 0) break;
    weights[suit] -= 1;
    if (++lengths[suit] >= limits[suit].maximum) weights[suit] = 0;
  }
  return lengths;
}

/// Builds the constrained hands of one deal, one after the other.
class HandBuilder {
 public:
  HandBuilder(const Constraints& constraints, RandomSource& random)
      : constraints_(constraints), random_(random) {}

  /// The first hand that meets the constraints, or the last attempt. Only its cards count as
  /// placed: those of failed attempts are free again.
  Hand Build(GenHand which) {
    Hand hand;
    PerSuit<int> lengths;
    for (int attempt = 1; attempt <= kMaxAttempts; ++attempt) {
      lengths = ChooseLengths(LimitsOf(which), random_);
      hand = Attempt(lengths, DrawPoints(which));
      if (Accepted(hand, which)) break;
    }
    for (const Suit suit : kAllSuits) placed_[suit] = placed_[suit] | hand[suit];
    firstLengths_ = lengths;
    return hand;
  }

 private:
  PerSuit<Limits> LimitsOf(GenHand which) {
    const HandType type = constraints_.HandTypeIndex[which];
    PerSuit<Limits> limits = constraints_.UseSuitLengths[which]
                                 ? constraints_.SuitLimits[which]
                                 : ChooseHandType(type, constraints_.HandTypeOption[type][which],
                                                  firstLengths_, random_);
    Tighten(limits);
    for (const Suit suit : kAllSuits) {
      int& maximum = limits[suit].maximum;
      if (which == GenHand::Second) {
        maximum = std::min(maximum, kRanks - firstLengths_[suit]);
      } else if (constraints_.NumGenHands == 2) {
        const int kept = constraints_.SuitLimits[GenHand::Second][suit].minimum;
        maximum = std::min(maximum, kRanks - kept);
      }
    }
    return limits;
  }

  int DrawPoints(GenHand which) {
    const auto [lowest, highest] = constraints_.PointLimits[which];
    return WeightedPick(HcpOdds, lowest, highest, random_);
  }

  bool Accepted(const Hand& hand, GenHand which) const {
    int points = 0;
    for (const Holding holding : hand) {
      for (unsigned bits = (holding & kHonourRanks).Bits(); bits != 0; bits &= bits - 1) {
        points += PointsOf(static_cast<Rank>(std::countr_zero(bits)));
      }
    }
    const auto [lowest, highest] = constraints_.PointLimits[which];
    return CardsOf(hand) == kCardsInHand && points >= lowest && points <= highest;
  }

  Hand Attempt(const PerSuit<int>& lengths, int points) {
    Hand hand;
    AddHonours(hand, lengths, points);
    for (const Suit suit : kAllSuits) {
      Holding spots = kWholeSuit - kHonourRanks - placed_[suit];
      for (int lacking = lengths[suit] - hand[suit].Count(); lacking > 0 && !spots.Empty();
           --lacking) {
        const Rank rank = RandomRank(spots, random_);
        spots.Remove(rank);
        hand[suit].Add(rank);
      }
    }
    return hand;
  }

  /// Honours at random among those that fit, until they make up `points` or none fits.
  void AddHonours(Hand& hand, const PerSuit<int>& lengths, int points) {
    std::array<Card, std::size_t{kSuits} * kHonours> honours{};
    std::size_t count = 0;
    for (const Suit suit : kAllSuits) {
      for (int index = 0; index < kHonours; ++index) {
        const Card honour{suit, static_cast<Rank>(index)};
        if (!placed_[suit].Has(honour.rank)) honours.at(count++) = honour;
      }
    }
    while (points > 0) {
      const auto fits = [&](Card honour) {
        return PointsOf(honour.rank) <= points && !hand[honour.suit].Has(honour.rank) &&
               hand[honour.suit].Count() < lengths[honour.suit];
      };
      auto* const end = std::partition(honours.data(), honours.data() + count, fits);
      count = static_cast<std::size_t>(end - honours.data());
      if (count == 0) return;
      const Card drawn = honours.at(random_.Below(static_cast<std::uint32_t>(count)));
      hand[drawn.suit].Add(drawn.rank);
      points -= PointsOf(drawn.rank);
    }
  }

  const Constraints& constraints_;
  RandomSource& random_;
  Hand placed_;                // cards of the hands already built
  PerSuit<int> firstLengths_;  // lengths chosen for the hand already built
};

/// The cards that no seat holds.
struct Pool {
  explicit Pool(const HandTable& hands) {
    for (const Suit suit : kAllSuits) {
      Holding held;
      for (const Seat seat : kAllSeats) held = held | hands[seat][suit];
      for (unsigned bits = (kWholeSuit - held).Bits(); bits != 0; bits &= bits - 1) {
        cards.at(count++) = {suit, static_cast<Rank>(std::countr_zero(bits))};
      }
    }
  }
  std::array<Card, kCardsInPack> cards{};
  std::size_t count = 0;
};

}  // namespace

bool Random(HandTable& hands, RandomSource& random) {
  Pool pool(hands);
  if (pool.count == 0) return true;
  PerSeat<int> places;
  int free = 0;
  Seat lastSeat = Seat::North;  // of those with free places
  for (const Seat seat : kAllSeats) {
    places[seat] = kCardsInHand - CardsOf(hands[seat]);
    if (places[seat] < 0) return false;
    if (places[seat] > 0) lastSeat = seat;
    free += places[seat];
  }
  if (free != static_cast<int>(pool.count)) return false;
  std::size_t next = 0;
  for (const Seat seat : kAllSeats) {
    for (int place = 0; place < places[seat]; ++place, ++next) {
      // A shuffle from the front. What is left for the last seat need not be shuffled: the order
      // of the cards within a hand makes no difference.
      if (seat != lastSeat) {
        const auto left = static_cast<std::uint32_t>(pool.count - next);
        std::swap(pool.cards.at(next), pool.cards.at(next + random.Below(left)));
      }
      AddCard(hands, pool.cards.at(next), seat);
    }
  }
  return true;
}

HandTable GenerateDeal(const Constraints& constraints, Seat dealer, RandomSource& random) {
  HandTable hands;
  HandBuilder builder(constraints, random);
  for (const GenHand which : kGenHands) {
    if (IndexOf(which) >= constraints.NumGenHands) break;
    hands[SeatOf(constraints, which, dealer)] = builder.Build(which);
  }
  Random(hands, random);
  return hands;
}

}  // namespace tricklet
