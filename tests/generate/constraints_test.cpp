#include "generate/constraints.h"

#include <cstdint>
#include <functional>
#include <vector>

#include <gtest/gtest.h>

#include "generate/hand_type.h"

namespace tricklet {
namespace {

/// n over k; exact for the whole of a pack.
std::uint64_t Choose(int n, int k) {
  if (k < 0 || k > n) return 0;
  std::uint64_t result = 1;
  for (int i = 1; i <= k; ++i) {
    result = result * static_cast<std::uint64_t>(n - k + i) / static_cast<std::uint64_t>(i);
  }
  return result;
}

double Percent(std::uint64_t hands) {
  return 100.0 * static_cast<double>(hands) / static_cast<double>(Choose(52, 13));
}

TEST(HcpOdds, AreThoseOfCounting) {
  std::array<std::uint64_t, 41> hands{};
  for (int code = 0; code < 625; ++code) {
    const int a = code % 5;
    const int k = code / 5 % 5;
    const int q = code / 25 % 5;
    const int j = code / 125;
    const int points = 4 * a + 3 * k + 2 * q + j;
    hands.at(static_cast<std::size_t>(points)) +=
        Choose(4, a) * Choose(4, k) * Choose(4, q) * Choose(4, j) * Choose(36, 13 - a - k - q - j);
  }
  std::uint64_t all = 0;
  for (std::size_t points = 0; points <= kMaxPoints; ++points) {
    all += hands.at(points);
    const double exact = Percent(hands.at(points));
    // Six decimals; the rarest with six digits.
    EXPECT_NEAR(HcpOdds.at(points), exact, points <= 30 ? 0.5e-6 : exact * 5e-6) << points;
  }
  EXPECT_EQ(all, Choose(52, 13));
}

TEST(PreemptOdds, AreThoseOfCounting) {
  for (int length = kShortestPreempt; length <= kCardsInHand; ++length) {
    const double exact = Percent(4 * Choose(13, length) * Choose(39, 13 - length));
    EXPECT_NEAR(kPreemptOdds.at(static_cast<std::size_t>(length - kShortestPreempt)), exact,
                exact * 5e-6)
        << length;
  }
}

PerSuit<Limits> AllSuits(Limits limits) {
  PerSuit<Limits> suits;
  suits.fill(limits);
  return suits;
}

TEST(CheckConstraints, TellsTheFirstContradiction) {
  constexpr GenHand kOne = GenHand::First;
  constexpr GenHand kTwo = GenHand::Second;
  using Change = std::function<void(Constraints&)>;
  const struct {
    const char* message;  // empty: accepted
    Change change;
  } kCases[] = {
      {"", [](Constraints&) {}},
      {"Suit minima add up to more than 13 in hand 1",
       [](Constraints& c) {
         c.suitLimits[kOne].values = {{{4, 13}, {4, 13}, {4, 13}, {2, 13}}};
       }},
      {"",
       [](Constraints& c) {
         c.suitLimits[kOne].values = {{{4, 4}, {4, 4}, {4, 4}, {1, 1}}};
       }},
      {"Suit minima add up to more than 13 in hand 2",
       [](Constraints& c) {
         c.suitLimits[kTwo] = AllSuits({4, 13});
       }},
      {"Suit maxima add up to less than 13 in hand 1",
       [](Constraints& c) {
         c.suitLimits[kOne] = AllSuits({0, 3});
       }},
      {"Suit maxima add up to less than 13 in hand 2",
       [](Constraints& c) {
         c.suitLimits[kTwo] = AllSuits({3, 3});
       }},
      // ten and three cards: 10 + 9 points
      {"",
       [](Constraints& c) {
         c.suitLimits[kOne].values = {{{0, 10}, {0, 3}, {0, 0}, {0, 0}}};
         c.pointLimits[kOne].minimum = 19;
       }},
      {"Cannot have 20 points with the distribution for hand 1",
       [](Constraints& c) {
         c.suitLimits[kOne].values = {{{0, 10}, {0, 3}, {0, 0}, {0, 0}}};
         c.pointLimits[kOne].minimum = 20;
       }},
      // what is greyed asks for nothing
      {"",
       [](Constraints& c) {
         c.suitLimits[kOne] = AllSuits({4, 4});
         c.suitLimits[kTwo] = AllSuits({0, 3});
         c.useSuitLengths.fill(false);
       }},
      // 4 + 7 + 0 + 10
      {"Cannot have 22 points with the distribution for hand 2",
       [](Constraints& c) {
         c.suitLimits[kTwo].values = {{{0, 1}, {0, 2}, {0, 0}, {0, 13}}};
         c.pointLimits[kTwo].minimum = 22;
       }},
      {"",
       [](Constraints& c) {
         c.pointLimits.fill({20, 37});
       }},
      {"Too many minimum points between the 2 hands",
       [](Constraints& c) {
         c.pointLimits.values = {{{21, 37}, {20, 37}}};
       }},
      {"Too many Spades between the 2 hands",
       [](Constraints& c) {
         c.suitLimits[kOne][Suit::Spades].minimum = 7;
         c.suitLimits[kTwo][Suit::Spades].minimum = 7;
       }},
      {"Too many Clubs between the 2 hands",
       [](Constraints& c) {
         c.suitLimits[kOne][Suit::Clubs].minimum = 12;
         c.suitLimits[kTwo][Suit::Clubs].minimum = 2;
       }},
      {"Hand 2 is the same direction as hand 1", [](Constraints& c) { c.handDirection.fill(3); }},
      {"Hand 2 is the same direction as hand 1",
       [](Constraints& c) {
         c.handDirection.fill(0);
         c.relativeToDealer = true;
       }},
      // one hand: nothing of the second is looked at
      {"",
       [](Constraints& c) {
         c.numGenHands = 1;
         c.handDirection.fill(0);
         c.suitLimits[kTwo] = AllSuits({4, 4});
         c.pointLimits.fill({30, 37});
       }},
      // the first that applies
      {"Suit minima add up to more than 13 in hand 1",
       [](Constraints& c) {
         c.suitLimits[kOne] = AllSuits({4, 2});
         c.handDirection.fill(0);
         c.pointLimits.fill({37, 37});
       }},
      {"Too many minimum points between the 2 hands",
       [](Constraints& c) {
         c.handDirection.fill(0);
         c.pointLimits.fill({37, 37});
       }},
  };
  for (const auto& c : kCases) {
    Constraints constraints;
    c.change(constraints);
    EXPECT_EQ(CheckConstraints(constraints).value_or(Contradiction{}).text, c.message);
  }
}

/// The most points of any 13 cards within the limits, suit by suit.
int MostPointsWithin(const PerSuit<Limits>& limits, int suit = 0, int cards = kCardsInHand) {
  constexpr std::array kPoints{0, 4, 7, 9, 10};
  if (suit == kSuits) return cards == 0 ? 0 : -100;
  const auto [lowest, highest] = limits[static_cast<Suit>(suit)];
  int most = -100;
  for (int length = lowest; length <= std::min(highest, cards); ++length) {
    const int here = kPoints.at(static_cast<std::size_t>(std::min(length, 4)));
    most = std::max(most, here + MostPointsWithin(limits, suit + 1, cards - length));
  }
  return most;
}

TEST(CheckConstraints, KnowsTheMostPointsOfATypesShapes) {
  RandomSource random(15);
  for (const HandType type : kAllHandTypes) {
    int most = 0;
    for (int shape = 0; shape < 200; ++shape) {
      most = std::max(most, MostPointsWithin(ChooseHandType(type, 0, {}, random)));
    }
    Constraints constraints;
    constraints.numGenHands = 1;
    constraints.useSuitLengths[GenHand::First] = false;
    constraints.handTypeIndex[GenHand::First] = type;
    constraints.pointLimits[GenHand::First].minimum = most;
    EXPECT_FALSE(CheckConstraints(constraints)) << HandTypes[type] << most;
    constraints.pointLimits[GenHand::First].minimum = most + 1;
    EXPECT_TRUE(CheckConstraints(constraints)) << HandTypes[type] << most;
  }
}

TEST(CheckConstraints, PointsAtWhatToChange) {
  constexpr GenHand kOne = GenHand::First;
  constexpr GenHand kTwo = GenHand::Second;
  using enum ConstraintPart;
  const struct {
    std::function<void(Constraints&)> change;
    GenHand hand;
    ConstraintPart part;
    Suit suit;
  } kCases[] = {
      {[](Constraints& c) {
         c.suitLimits[kTwo].values = {{{3, 13}, {2, 13}, {6, 13}, {4, 13}}};
       },
       kTwo, SuitMinima, Suit::Diamonds},
      {[](Constraints& c) {
         c.suitLimits[kOne].values = {{{0, 5}, {0, 4}, {0, 3}, {0, 0}}};
       },
       kOne, SuitMaxima, Suit::Clubs},
      {[](Constraints& c) {
         c.pointLimits.fill({21, 37});
       },
       kTwo, Points, Suit::Spades},
      {[](Constraints& c) {
         c.suitLimits[kOne][Suit::Hearts].minimum = 12;
         c.suitLimits[kTwo][Suit::Hearts].minimum = 2;
       },
       kTwo, SuitMinima, Suit::Hearts},
      {[](Constraints& c) { c.handDirection.fill(2); }, kTwo, Direction, Suit::Spades},
  };
  for (const auto& c : kCases) {
    Constraints constraints;
    c.change(constraints);
    const auto found = CheckConstraints(constraints);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->hand, c.hand) << found->text;
    EXPECT_EQ(found->part, c.part) << found->text;
    EXPECT_EQ(found->suit, c.suit) << found->text;
  }
}

}  // namespace
}  // namespace tricklet
