#include "generate/deal.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <utility>

#include "generate/hand_type.h"

namespace tricklet {
namespace {

/// A set of cards: bit n is the card of index n (`Card::Index`).
using CardSet = std::uint64_t;

constexpr CardSet kPack = (CardSet{1} << kCardsInPack) - 1;

constexpr CardSet SetOf(int card) {
  return CardSet{1} << static_cast<unsigned>(card);
}

constexpr CardSet SetOf(Suit suit, Holding holding) {
  return CardSet{holding.Bits()} << static_cast<unsigned>(IndexOf(suit) * kRanks);
}

/// These ranks in all suits.
constexpr CardSet RanksOfAllSuits(Holding ranks) {
  CardSet cards = 0;
  for (const Suit suit : kAllSuits) cards |= SetOf(suit, ranks);
  return cards;
}

constexpr CardSet WholeSuit(Suit suit) {
  return SetOf(suit, Holding::FromBits(Holding::kAllBits));
}

constexpr int kHonourRanks = 4;  // ace 4 points, king 3, queen 2, jack 1
constexpr CardSet kHonours = RanksOfAllSuits(Holding::FromBits((1U << kHonourRanks) - 1));

/// The honours worth at most n points, by n of 0..4: for 1 point the jacks, for 4 all.
constexpr auto kHonoursUpTo = [] {
  std::array<CardSet, kHonourRanks + 1> upTo{};
  for (std::size_t points = 1; points < upTo.size(); ++points) {
    const auto jackUpwards = Holding::FromBits(0xFU << (kHonourRanks - points));
    upTo.at(points) = RanksOfAllSuits(jackUpwards) & kHonours;
  }
  return upTo;
}();

constexpr int PointsOf(CardSet cards) {
  int points = 0;
  for (std::size_t least = 1; least < kHonoursUpTo.size(); ++least) {
    points += std::popcount(cards & kHonours & ~kHonoursUpTo.at(least - 1));
  }
  return points;
}

CardSet SetOf(const PerSuit<Holding>& hand) {
  CardSet cards = 0;
  for (const Suit suit : kAllSuits) cards |= SetOf(suit, hand[suit]);
  return cards;
}

PerSuit<Holding> HandOf(CardSet cards) {
  PerSuit<Holding> hand;
  for (Holding& holding : hand) {
    holding = Holding::FromBits(static_cast<unsigned>(cards & Holding::kAllBits));
    cards >>= static_cast<unsigned>(kRanks);
  }
  return hand;
}

/// One of `cards`, which is not empty.
int RandomCard(CardSet cards, RandomSource& random) {
  const auto count = static_cast<std::uint32_t>(std::popcount(cards));
  for (std::uint32_t skip = random.Below(count); skip > 0; --skip) cards &= cards - 1;
  return std::countr_zero(cards);
}

/// Makes the limits agree with a hand of 13 cards: no suit so long that the others' minima do not
/// fit, none so short that the others' maxima do not reach. Where a minimum is above its maximum
/// the maximum counts, so that no hand gets more than 13 cards.
void Tighten(PerSuit<Limits>& limits) {
  for (Limits& suit : limits) suit.minimum = std::min(suit.minimum, suit.maximum);
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
  // Cards of the suit still outside the hand, 0 when it takes no more. As whole numbers these are
  // picked from faster than by `WeightedPick`, with the same odds.
  PerSuit<int> weights;
  int weight = 0;
  int total = 0;
  for (const Suit suit : kAllSuits) {
    const auto [minimum, maximum] = limits[suit];
    lengths[suit] = minimum;
    weights[suit] = minimum >= maximum ? 0 : kRanks - minimum;
    weight += weights[suit];
    total += minimum;
  }
  for (; total < kCardsInHand && weight > 0; ++total) {
    const auto drawn = static_cast<int>(random.Below(static_cast<std::uint32_t>(weight)));
    const int spades = weights[Suit::Spades];
    const int majors = spades + weights[Suit::Hearts];
    const int notClubs = majors + weights[Suit::Diamonds];
    // Without branches, which the processor could not predict.
    const auto suit =
        static_cast<Suit>(static_cast<int>(drawn >= spades) + static_cast<int>(drawn >= majors) +
                          static_cast<int>(drawn >= notClubs));
    const int taken = ++lengths[suit] >= limits[suit].maximum ? weights[suit] : 1;
    weights[suit] -= taken;
    weight -= taken;
  }
  return lengths;
}

/// Builds the constrained hands of one deal, one after the other.
class HandBuilder {
 public:
  HandBuilder(const Constraints& constraints, RandomSource& random)
      : constraints_(constraints),
        secondAsked_(AskedLengths(constraints, GenHand::Second)),
        random_(random) {}

  /// The first hand that meets the constraints, or the last attempt. Only its cards count as
  /// placed: those of failed attempts are free again.
  CardSet Build(GenHand which) {
    CardSet hand = 0;
    PerSuit<int> lengths;
    for (int attempt = 1; attempt <= kMaxAttempts; ++attempt) {
      lengths = ChooseLengths(LimitsOf(which), random_);
      hand = Attempt(lengths, DrawPoints(which));
      if (Accepted(hand, which)) break;
    }
    placed_ |= hand;
    firstLengths_ = lengths;
    return hand;
  }

 private:
  PerSuit<Limits> LimitsOf(GenHand which) {
    PerSuit<Limits> limits = constraints_.suitLimits[which];
    if (!constraints_.useSuitLengths[which]) {
      const HandType type = constraints_.handTypeIndex[which];
      const int option = constraints_.handTypeOption[type][which];
      limits = ChooseHandType(type, option, firstLengths_, random_);
    }
    Tighten(limits);
    const bool roomForSecond = which == GenHand::First && constraints_.numGenHands == 2;
    for (const Suit suit : kAllSuits) {
      int taken = firstLengths_[suit];
      if (roomForSecond) taken = secondAsked_[suit].minimum;
      limits[suit].maximum = std::min(limits[suit].maximum, kRanks - taken);
    }
    return limits;
  }

  int DrawPoints(GenHand which) {
    const auto [lowest, highest] = constraints_.pointLimits[which];
    return WeightedPick(HcpOdds, lowest, highest, random_);
  }

  bool Accepted(CardSet hand, GenHand which) const {
    const auto [lowest, highest] = constraints_.pointLimits[which];
    const int points = PointsOf(hand);
    return std::popcount(hand) == kCardsInHand && points >= lowest && points <= highest;
  }

  /// Fewer than 13 cards when there are not enough spot cards.
  CardSet Attempt(PerSuit<int> lengths, int points) {
    CardSet hand = TakeHonours(lengths, points);
    for (const Suit suit : kAllSuits) {
      CardSet spots = WholeSuit(suit) & ~kHonours & ~placed_;
      for (int lacking = lengths[suit]; lacking > 0 && spots != 0; --lacking) {
        const CardSet drawn = SetOf(RandomCard(spots, random_));
        spots &= ~drawn;
        hand |= drawn;
      }
    }
    return hand;
  }

  /// Honours at random among those that fit, until they make up `points` or none fits. Takes them
  /// off the lengths.
  CardSet TakeHonours(PerSuit<int>& lengths, int points) {
    CardSet hand = 0;
    CardSet fitting = kHonours & ~placed_;
    for (const Suit suit : kAllSuits) {
      if (lengths[suit] <= 0) fitting &= ~WholeSuit(suit);
    }
    while (points > 0) {
      fitting &= kHonoursUpTo.at(static_cast<std::size_t>(std::min(points, kHonourRanks)));
      if (fitting == 0) break;
      const int card = RandomCard(fitting, random_);
      const auto [suit, rank] = Card::FromIndex(card);
      hand |= SetOf(card);
      fitting &= ~SetOf(card);
      points -= kHonourRanks - IndexOf(rank);
      if (--lengths[suit] == 0) fitting &= ~WholeSuit(suit);
    }
    return hand;
  }

  const Constraints& constraints_;
  const PerSuit<Limits> secondAsked_;
  RandomSource& random_;
  CardSet placed_ = 0;         // cards of the hands already built
  PerSuit<int> firstLengths_;  // lengths chosen for the hand already built
};

/// Deals the cards that no hand holds to the hands with fewer than 13. False, and nothing dealt,
/// when they do not fit: a hand holds more than 13, or there are more or fewer cards than places.
bool DealRest(std::array<CardSet, kSeats>& hands, RandomSource& random) {
  CardSet left = kPack;
  for (const CardSet hand : hands) left &= ~hand;
  std::array<std::uint8_t, kCardsInPack> pool{};
  std::uint32_t count = 0;
  for (CardSet rest = left; rest != 0; rest &= rest - 1) {
    pool.at(count++) = static_cast<std::uint8_t>(std::countr_zero(rest));
  }
  if (count == 0) return true;
  std::array<std::uint32_t, kSeats> places{};
  std::uint32_t free = 0;
  std::size_t last = 0;
  for (std::size_t seat = 0; seat < hands.size(); ++seat) {
    const int held = std::popcount(hands.at(seat));
    if (held > kCardsInHand) return false;
    places.at(seat) = static_cast<std::uint32_t>(kCardsInHand - held);
    if (places.at(seat) > 0) last = seat;
    free += places.at(seat);
  }
  if (free != count) return false;
  // A shuffle from the front. What is left for the last seat need not be shuffled: the order of
  // the cards within a hand makes no difference.
  std::uint32_t next = 0;
  for (std::size_t seat = 0; seat < last; ++seat) {
    CardSet dealt = 0;
    for (std::uint32_t place = places.at(seat); place > 0; --place, ++next) {
      std::swap(pool.at(next), pool.at(next + random.Below(count - next)));
      dealt |= SetOf(pool.at(next));
    }
    hands.at(seat) |= dealt;
    left &= ~dealt;
  }
  hands.at(last) |= left;
  return true;
}

}  // namespace

bool Random(HandTable& hands, RandomSource& random) {
  std::array<CardSet, kSeats> sets{};
  for (const Seat seat : kAllSeats) sets.at(static_cast<std::size_t>(seat)) = SetOf(hands[seat]);
  if (!DealRest(sets, random)) return false;
  for (const Seat seat : kAllSeats) hands[seat] = HandOf(sets.at(static_cast<std::size_t>(seat)));
  return true;
}

HandTable GenerateDeal(const Constraints& constraints, Seat dealer, RandomSource& random) {
  HandTable hands;
  HandBuilder builder(constraints, random);
  for (const GenHand which : kGenHands) {
    if (IndexOf(which) >= constraints.numGenHands) break;
    hands[SeatOf(constraints, which, dealer)] = HandOf(builder.Build(which));
  }
  Random(hands, random);
  return hands;
}

}  // namespace tricklet
