#include "generate/hand_type.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace tricklet {
namespace {

using Pattern = std::array<int, kSuits>;  // lengths, the longest first

constexpr std::array<Pattern, 3> kBalancedPatterns{{{4, 4, 3, 2}, {5, 3, 3, 2}, {4, 3, 3, 3}}};
constexpr Pattern kThreeSuiter{4, 4, 4, 1};

constexpr Limits kAnyLength{0, kCardsInHand};

constexpr Limits Exactly(int length) {
  return {length, length};
}

Suit RandomSuit(int last, RandomSource& random) {
  return static_cast<Suit>(RandomBetween(0, last, random));
}

PerSuit<Limits> LongSuit(Suit suit, int length) {
  PerSuit<Limits> limits;
  limits.fill(kAnyLength);
  limits[suit] = Exactly(length);
  return limits;
}

PerSuit<Limits> ShapeBalanced(int option, RandomSource& random) {
  constexpr int kFiveThreeThreeTwo = 1;
  // A-priori percentages of the patterns, by counting.
  std::array<double, 3> weights{21.552, 15.517, 10.536};
  const bool fiveInMinor = option == 1;
  if (fiveInMinor) weights[kFiveThreeThreeTwo] /= 2;  // half of them have the five in a major
  const int pattern = WeightedPick(weights, 0, 2, random);
  Pattern lengths = kBalancedPatterns.at(static_cast<std::size_t>(pattern));
  PerSuit<Limits> limits;
  for (const Suit suit : kAllSuits) {
    const int last = kSuits - 1 - IndexOf(suit);
    const auto drawn = static_cast<std::size_t>(RandomBetween(0, last, random));
    limits[suit] = Exactly(lengths.at(drawn));
    lengths.at(drawn) = lengths.at(static_cast<std::size_t>(last));
  }
  if (fiveInMinor && pattern == kFiveThreeThreeTwo) {
    for (const Suit major : {Suit::Spades, Suit::Hearts}) {
      const auto minor = static_cast<Suit>(IndexOf(major) + 2);
      if (limits[major] == Exactly(5)) std::swap(limits[major], limits[minor]);
    }
  }
  return limits;
}

/// In spades or hearts; with option 1 in diamonds too.
PerSuit<Limits> ShapeWeak2(int option, RandomSource& random) {
  return LongSuit(RandomSuit(1 + option, random), kWeakTwoLength);
}

PerSuit<Limits> Shape4441(RandomSource& random) {
  PerSuit<Limits> limits;
  limits.fill(Exactly(kThreeSuiter.front()));
  limits[RandomSuit(kSuits - 1, random)] = Exactly(kThreeSuiter.back());
  return limits;
}

PerSuit<Limits> ShapePreempt(const PerSuit<int>& firstLengths, RandomSource& random) {
  // A hand of 13 cards has at most one suit longer than six, so that three are left.
  std::array<Suit, kSuits> allowed{};
  int count = 0;
  for (const Suit suit : kAllSuits) {
    if (firstLengths[suit] < kShortestPreempt) allowed.at(static_cast<std::size_t>(count++)) = suit;
  }
  const auto drawn = static_cast<std::size_t>(RandomBetween(0, count - 1, random));
  const int longer = WeightedPick(kPreemptOdds, 0, kCardsInHand - kShortestPreempt, random);
  return LongSuit(allowed.at(drawn), kShortestPreempt + longer);
}

}  // namespace

PerSuit<Limits> ChooseHandType(HandType type, int option, const PerSuit<int>& firstLengths,
                               RandomSource& random) {
  switch (type) {
    case HandType::Balanced:
      return ShapeBalanced(option, random);
    case HandType::Weak2:
      return ShapeWeak2(option, random);
    case HandType::FourFourFourOne:
      return Shape4441(random);
    case HandType::Preempt:
      break;
  }
  return ShapePreempt(firstLengths, random);
}

bool IsOfType(HandType type, int option, const PerSuit<int>& lengths) {
  Pattern pattern = lengths.values;
  std::sort(pattern.begin(), pattern.end(), std::greater<>());
  switch (type) {
    case HandType::Balanced: {
      const bool majorAllowed = option == 0;
      const int longestMajor = std::max(lengths[Suit::Spades], lengths[Suit::Hearts]);
      return std::find(kBalancedPatterns.begin(), kBalancedPatterns.end(), pattern) !=
                 kBalancedPatterns.end() &&
             (majorAllowed || longestMajor < 5);
    }
    case HandType::Weak2:
      return std::count(lengths.begin(), lengths.begin() + 2 + option, kWeakTwoLength) > 0;
    case HandType::FourFourFourOne:
      return pattern == kThreeSuiter;
    case HandType::Preempt:
      break;
  }
  return pattern.front() >= kShortestPreempt;
}

}  // namespace tricklet
