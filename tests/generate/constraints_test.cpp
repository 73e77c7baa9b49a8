#include "generate/constraints.h"

#include <cmath>

#include <gtest/gtest.h>

#include "generate/hand_type.h"
#include "tests/support/hands.h"

namespace tricklet {
namespace {

constexpr GenHand kOne = GenHand::First;
constexpr GenHand kTwo = GenHand::Second;

/// n over k.
double Choose(int n, int k) {
  return k < 0 ? 0 : 1 / ((n + 1) * std::beta(n - k + 1, k + 1));
}

TEST(Odds, AreThoseOfCounting) {
  const double all = Choose(52, 13) / 100;
  std::array<double, 41> exact{};
  for (int code = 0; code < 625; ++code) {
    const int a = code % 5;
    const int k = code / 5 % 5;
    const int q = code / 25 % 5;
    const int j = code / 125;
    exact.at(static_cast<std::size_t>(4 * a + 3 * k + 2 * q + j)) +=
        Choose(4, a) * Choose(4, k) * Choose(4, q) * Choose(4, j) * Choose(36, 13 - a - k - q - j) /
        all;
  }
  for (std::size_t points = 0; points < HcpOdds.size(); ++points) {
    const double tolerance = points <= 30 ? 0.5e-6 : exact.at(points) * 5e-6;
    EXPECT_NEAR(HcpOdds.at(points), exact.at(points), tolerance) << points;
  }
  EXPECT_EQ(exact.at(HcpOdds.size()), 0) << "38 points there are not";
  for (int length = kShortestPreempt; length <= kCardsInHand; ++length) {
    const double each = 4 * Choose(13, length) * Choose(39, 13 - length) / all;
    EXPECT_NEAR(kPreemptOdds.at(static_cast<std::size_t>(length - 7)), each, each * 5e-6) << length;
  }
}

/// What is asked of one hand.
struct Asked {
  std::array<Limits, 4> suits{{{0, 13}, {0, 13}, {0, 13}, {0, 13}}};
  Limits points{0, 37};
  int direction = 0;
};

Constraints Asking(const Asked& first, const Asked& second) {
  Constraints constraints;
  constraints.suitLimits.values = {{{first.suits}, {second.suits}}};
  constraints.pointLimits.values = {{first.points, second.points}};
  constraints.handDirection[kOne] = first.direction;
  return constraints;
}

constexpr Asked AllSuits(Limits limits, Limits points = {0, 37}) {
  return {.suits = {limits, limits, limits, limits}, .points = points};
}

TEST(CheckConstraints, TellsTheFirstContradictionAndItsPlace) {
  using enum ConstraintPart;
  const Asked twoSuits{.suits = {{{0, 10}, {0, 3}, {}, {}}}, .points = {19, 37}};
  Asked twentyPoints = twoSuits;
  twentyPoints.points.minimum = 20;
  const struct {
    const char* message;  // empty: accepted
    GenHand hand;
    ConstraintPart part;
    Suit suit;
    Asked first;
    Asked second;
    int hands = 2;
    bool types = false;  // both hands go by a type
  } kCases[] = {
      {"", {}, {}, {}, {}, {}},
      {"", {}, {}, {}, {.suits = {{{4, 13}, {4, 13}, {4, 13}, {1, 13}}}}, {}},
      {"", {}, {}, {}, {.suits = {{{0, 4}, {0, 4}, {0, 4}, {0, 1}}}}, {}},
      {"Suit minima add up to more than 13 in hand 1",
       kOne,
       SuitMinima,
       Suit::Diamonds,
       {.suits = {{{3, 13}, {3, 13}, {5, 13}, {3, 13}}}},
       {}},
      {"Suit minima add up to more than 13 in hand 2",
       kTwo,
       SuitMinima,
       Suit::Spades,
       {},
       AllSuits({4, 13})},
      {"Suit maxima add up to less than 13 in hand 1",
       kOne,
       SuitMaxima,
       Suit::Clubs,
       {.suits = {{{0, 5}, {0, 4}, {0, 3}, {}}}},
       {}},
      {"Suit maxima add up to less than 13 in hand 2",
       kTwo,
       SuitMaxima,
       Suit::Spades,
       {},
       AllSuits({3, 3})},
      {"", {}, {}, {}, twoSuits, {}},  // ten and three cards: 10 + 9 points
      {"Cannot have 20 points with the distribution for hand 1",
       kOne,
       Points,
       {},
       twentyPoints,
       {}},
      {"Cannot have 22 points with the distribution for hand 2",
       kTwo,
       Points,
       {},
       {},
       {.suits = {{{0, 1}, {0, 2}, {}, {0, 13}}}, .points = {22, 37}}},  // 4 + 7 + 0 + 10
      {"", {}, {}, {}, AllSuits({4, 4}), AllSuits({0, 3}), 2, true},
      {"", {}, {}, {}, {.points = {20, 37}}, {.points = {20, 37}}},
      {"Too many minimum points between the 2 hands",
       kTwo,
       Points,
       {},
       {.points = {21, 37}},
       {.points = {20, 37}}},
      {"",
       {},
       {},
       {},
       {.suits = {{{7, 13}, {0, 13}, {0, 13}, {0, 13}}}},
       {.suits = {{{6, 13}, {0, 13}, {0, 13}, {0, 13}}}}},
      {"Too many Clubs between the 2 hands",
       kTwo,
       SuitMinima,
       Suit::Clubs,
       {.suits = {{{0, 13}, {0, 13}, {0, 13}, {12, 13}}}},
       {.suits = {{{0, 13}, {0, 13}, {0, 13}, {2, 13}}}}},
      {"Hand 2 is the same direction as hand 1", kTwo, Direction, {}, {.direction = 1}, {}},
      {"", {}, {}, {}, {.direction = 1}, AllSuits({4, 4}, {30, 37}), 1},  // only one hand
      {"Suit minima add up to more than 13 in hand 1",
       kOne,
       SuitMinima,
       Suit::Spades,
       AllSuits({4, 2}, {37, 37}),
       {.points = {37, 37}}},  // before all others
  };
  for (const auto& c : kCases) {
    Constraints constraints = Asking(c.first, c.second);
    constraints.useSuitLengths.fill(!c.types);
    constraints.numGenHands = c.hands;
    const Contradiction found = CheckConstraints(constraints).value_or(Contradiction{});
    EXPECT_EQ(found.text, c.message);
    EXPECT_TRUE(found.hand == c.hand && found.part == c.part && found.suit == c.suit) << c.message;
  }
}

TEST(CheckConstraints, KnowsTheMostPointsOfATypesShapes) {
  const EnumArray<HandType, int, kHandTypes> most{{10 + 9 + 9 + 9,    // 4-3-3-3
                                                   10 + 9 + 7 + 7,    // 6-3-2-2
                                                   10 + 10 + 10 + 4,  // 4-4-4-1
                                                   10 + 7 + 7 + 7}};  // 7-2-2-2
  for (const HandType type : kAllHandTypes) {
    Constraints constraints;
    constraints.useSuitLengths[kTwo] = false;
    constraints.handTypeIndex[kTwo] = type;
    for (const int points : {most[type], most[type] + 1}) {
      constraints.pointLimits[kTwo].minimum = points;
      EXPECT_EQ(CheckConstraints(constraints).has_value(), points > most[type]) << HandTypes[type];
    }
  }
}

TEST(MeetsConstraints, LooksAtPointsAndLengthsOfTheConstrainedHands) {
  // North has 13 points, East 17.
  const HandTable hands =
      test::HandsOf("N:AKQ2.A432.432.32 JT9876.KQJ.KQ.KQ 543.T98.JT98.JT4 .765.A765.A98765");
  const struct {
    bool meets;
    Asked first;
    Asked second;
    int hands = 2;
  } kCases[] = {
      {true, {.points = {13, 13}}, {.points = {17, 17}}},
      {false, {.points = {14, 37}}, {}},
      {false, {.points = {0, 12}}, {}},
      {false, {}, {.points = {18, 37}}},
      {true, {}, {.points = {18, 37}}, 1},
      {true, {.suits = {{{4, 4}, {4, 4}, {3, 3}, {2, 2}}}}, {}},
      {false, {.suits = {{{4, 4}, {4, 4}, {3, 3}, {3, 3}}}}, {}},
      {false, {.suits = {{{0, 3}, {0, 4}, {0, 3}, {0, 3}}}}, {}},
  };
  for (const auto& c : kCases) {
    Constraints constraints = Asking(c.first, c.second);
    constraints.numGenHands = c.hands;
    EXPECT_EQ(MeetsConstraints(constraints, hands, Seat::West), c.meets) << &c - kCases;
  }
  Constraints balanced = Asking({.points = {13, 37}}, {});
  balanced.useSuitLengths[kOne] = false;
  EXPECT_TRUE(MeetsConstraints(balanced, hands, Seat::East));
  balanced.relativeToDealer = true;  // East is no balanced hand
  EXPECT_FALSE(MeetsConstraints(balanced, hands, Seat::East));
  EXPECT_EQ(SeatOf(balanced, kTwo, Seat::West), Seat::North);
}

TEST(IsOfType, KnowsTheShapes) {
  const struct {
    HandType type;
    int option;
    PerSuit<int> lengths;
    bool is;
  } kCases[] = {{HandType::Balanced, 0, {{5, 3, 3, 2}}, true},
                {HandType::Balanced, 1, {{5, 3, 3, 2}}, false},
                {HandType::Balanced, 1, {{3, 2, 3, 5}}, true},
                {HandType::Balanced, 0, {{4, 4, 4, 1}}, false},
                {HandType::Weak2, 0, {{1, 6, 5, 1}}, true},
                {HandType::Weak2, 0, {{3, 2, 6, 2}}, false},
                {HandType::Weak2, 1, {{3, 2, 6, 2}}, true},
                {HandType::Weak2, 1, {{3, 2, 2, 6}}, false},
                {HandType::FourFourFourOne, 0, {{4, 1, 4, 4}}, true},
                {HandType::FourFourFourOne, 0, {{4, 4, 3, 2}}, false},
                {HandType::Preempt, 0, {{1, 2, 3, 7}}, true},
                {HandType::Preempt, 0, {{6, 6, 1, 0}}, false}};
  for (const auto& c : kCases) {
    EXPECT_EQ(IsOfType(c.type, c.option, c.lengths), c.is) << &c - kCases;
  }
}

}  // namespace
}  // namespace tricklet
