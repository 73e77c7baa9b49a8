#include "generate/constraints.h"

#include <algorithm>

#include "core/statistics.h"
#include "generate/hand_type.h"

namespace tricklet {
namespace {

/// Most points that 0..4 cards of one suit hold.
constexpr std::array kMostPointsOfCards{0, 4, 7, 9, 10};

/// Points of two hands cannot exceed those of the pack.
constexpr int kPointsInPack = 40;

int MostPoints(const PerSuit<Limits>& suits) {
  int points = 0;
  for (const Limits& suit : suits) {
    points += kMostPointsOfCards.at(static_cast<std::size_t>(std::clamp(suit.maximum, 0, 4)));
  }
  return points;
}

/// Most points of a hand of each type: with 4-3-3-3; 6-3-2-2 for a weak two; 4-4-4-1; 7-2-2-2 for a
/// pre-empt.
constexpr EnumArray<HandType, int, kHandTypes> kMostPointsOfType{{37, 33, 34, 31}};

int MostPoints(const Constraints& constraints, GenHand hand) {
  return constraints.useSuitLengths[hand] ? MostPoints(constraints.suitLimits[hand])
                                          : kMostPointsOfType[constraints.handTypeIndex[hand]];
}

Suit SuitOfHighestMinimum(const PerSuit<Limits>& suits) {
  return *std::max_element(kAllSuits.begin(), kAllSuits.end(), [&suits](Suit a, Suit b) {
    return suits[a].minimum < suits[b].minimum;
  });
}

Suit SuitOfLowestMaximum(const PerSuit<Limits>& suits) {
  return *std::min_element(kAllSuits.begin(), kAllSuits.end(), [&suits](Suit a, Suit b) {
    return suits[a].maximum < suits[b].maximum;
  });
}

std::optional<Contradiction> CheckHand(const Constraints& constraints, GenHand hand) {
  using enum ConstraintPart;
  const std::string number = std::to_string(IndexOf(hand) + 1);
  const PerSuit<Limits> suits = AskedLengths(constraints, hand);
  int minima = 0;
  int maxima = 0;
  for (const Limits& suit : suits) {
    minima += suit.minimum;
    maxima += suit.maximum;
  }
  if (minima > kCardsInHand) {
    return Contradiction{"Suit minima add up to more than 13 in hand " + number, hand, SuitMinima,
                         SuitOfHighestMinimum(suits)};
  }
  if (maxima < kCardsInHand) {
    return Contradiction{"Suit maxima add up to less than 13 in hand " + number, hand, SuitMaxima,
                         SuitOfLowestMaximum(suits)};
  }
  const int points = constraints.pointLimits[hand].minimum;
  if (points > MostPoints(constraints, hand)) {
    return Contradiction{"Cannot have " + std::to_string(points) +
                             " points with the distribution for hand " + number,
                         hand, Points};
  }
  return std::nullopt;
}

std::optional<Contradiction> CheckBothHands(const Constraints& constraints) {
  using enum ConstraintPart;
  constexpr GenHand kSecond = GenHand::Second;
  const auto& points = constraints.pointLimits;
  if (points[GenHand::First].minimum + points[kSecond].minimum > kPointsInPack) {
    return Contradiction{"Too many minimum points between the 2 hands", kSecond, Points};
  }
  const PerSuit<Limits> first = AskedLengths(constraints, GenHand::First);
  const PerSuit<Limits> second = AskedLengths(constraints, kSecond);
  for (const Suit suit : kAllSuits) {
    if (first[suit].minimum + second[suit].minimum > kRanks) {
      return Contradiction{"Too many " + std::string(SuitName[suit]) + " between the 2 hands",
                           kSecond, SuitMinima, suit};
    }
  }
  if (constraints.handDirection[GenHand::First] == constraints.handDirection[kSecond]) {
    return Contradiction{"Hand 2 is the same direction as hand 1", kSecond, Direction};
  }
  return std::nullopt;
}

bool IsWithin(Limits limits, int number) {
  return number >= limits.minimum && number <= limits.maximum;
}

/// The lengths are within the limits that are asked, or are those of the type.
bool HasAskedShape(const Constraints& constraints, GenHand hand, const PerSuit<int>& lengths) {
  if (!constraints.useSuitLengths[hand]) {
    const HandType type = constraints.handTypeIndex[hand];
    return IsOfType(type, constraints.handTypeOption[type][hand], lengths);
  }
  return std::all_of(kAllSuits.begin(), kAllSuits.end(), [&](Suit suit) {
    return IsWithin(constraints.suitLimits[hand][suit], lengths[suit]);
  });
}

}  // namespace

PerSuit<Limits> AskedLengths(const Constraints& constraints, GenHand hand) {
  if (constraints.useSuitLengths[hand]) return constraints.suitLimits[hand];
  PerSuit<Limits> any;
  any.fill({0, kCardsInHand});
  return any;
}

std::optional<Contradiction> CheckConstraints(const Constraints& constraints) {
  for (const GenHand hand : kGenHands) {
    if (IndexOf(hand) >= constraints.numGenHands) break;
    if (auto contradiction = CheckHand(constraints, hand)) return contradiction;
  }
  return constraints.numGenHands == 2 ? CheckBothHands(constraints) : std::nullopt;
}

Seat SeatOf(const Constraints& constraints, GenHand hand, Seat dealer) {
  const Seat base = constraints.relativeToDealer ? dealer : Seat::North;
  return SeatAfter(base, constraints.handDirection[hand]);
}

bool MeetsConstraints(const Constraints& constraints, const HandTable& hands, Seat dealer) {
  const Statistics statistics = GetStats(hands);
  return std::all_of(kGenHands.begin(), kGenHands.end(), [&](GenHand hand) {
    if (IndexOf(hand) >= constraints.numGenHands) return true;
    const Seat seat = SeatOf(constraints, hand, dealer);
    return IsWithin(constraints.pointLimits[hand], statistics.seatHcp[seat]) &&
           HasAskedShape(constraints, hand, statistics.suitLength[seat]);
  });
}

}  // namespace tricklet
