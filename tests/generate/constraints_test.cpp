#include "generate/constraints.h"

#include <algorithm>
#include <cmath>
#include <sstream>

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
    const int points = 4 * a + 3 * k + 2 * q + j;
    exact.at(static_cast<std::size_t>(points)) += Choose(4, a) * Choose(4, k) * Choose(4, q) *
                                                  Choose(4, j) * Choose(36, 13 - a - k - q - j) /
                                                  all;
  }
  for (std::size_t points = 0; points < HcpOdds.size(); ++points) {
    const double tolerance = points <= 30 ? 0.5e-6 : exact.at(points) * 5e-6;
    EXPECT_NEAR(HcpOdds.at(points), exact.at(points), tolerance) << points;
  }
  EXPECT_EQ(exact.at(HcpOdds.size()), 0) << "no hand has 38 points";
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

constexpr Asked Points(int least, int most = 37) {
  return {.points = {least, most}};
}

constexpr Asked Min(int spades, int hearts, int diamonds, int clubs) {
  return {{{{spades, 13}, {hearts, 13}, {diamonds, 13}, {clubs, 13}}}};
}

constexpr Asked Max(int spades, int hearts, int diamonds, int clubs, int points = 0) {
  return {{{{0, spades}, {0, hearts}, {0, diamonds}, {0, clubs}}}, {points, 37}};
}

/// "2 minimum of C: Too many Clubs": the hand, where it shows, and what is told.
std::string Told(const std::optional<Contradiction>& found) {
  if (!found) return "";
  constexpr std::array kParts{"minimum of ", "maximum of ", "points", "direction"};
  std::string place = kParts.at(static_cast<std::size_t>(found->part));
  if (place.ends_with(' ')) place += StrainLetter[ToStrain(found->suit)];
  return std::to_string(IndexOf(found->hand) + 1) + " " + place + ": " + found->text;
}

TEST(CheckConstraints, TellsTheFirstContradictionAndItsPlace) {
  const Asked east{.direction = 1};
  const struct {
    Asked first;
    Asked second;
    const char* told;
    int hands = 2;
    bool types = false;  // both hands go by a type
  } kCases[] = {
      {{}, {}, ""},
      {Min(4, 4, 4, 1), Max(4, 4, 4, 1), ""},
      {Min(3, 3, 5, 3), {}, "1 minimum of D: Suit minima add up to more than 13 in hand 1"},
      {{}, Min(4, 4, 4, 4), "2 minimum of S: Suit minima add up to more than 13 in hand 2"},
      {Max(5, 4, 3, 0), {}, "1 maximum of C: Suit maxima add up to less than 13 in hand 1"},
      {{}, Max(3, 3, 3, 3), "2 maximum of S: Suit maxima add up to less than 13 in hand 2"},
      {Max(10, 3, 0, 0, 19), {}, ""},  // 10 + 9
      {Max(10, 3, 0, 0, 20),
       {},
       "1 points: Cannot have 20 points with the distribution for hand 1"},
      {{},
       Max(1, 2, 0, 13, 22),
       "2 points: Cannot have 22 points with the distribution for hand 2"},
      {Min(4, 4, 4, 4), Max(3, 3, 3, 3), "", 2, true},
      {Points(20), Points(20), ""},
      {Points(21), Points(20), "2 points: Too many minimum points between the 2 hands"},
      {Min(7, 0, 0, 0), Min(6, 0, 0, 0), ""},
      {Min(0, 0, 0, 12), Min(0, 0, 0, 2), "2 minimum of C: Too many Clubs between the 2 hands"},
      {east, {}, "2 direction: Hand 2 is the same direction as hand 1"},
      {east, Min(4, 4, 4, 4), "", 1}};
  for (const auto& c : kCases) {
    Constraints constraints = Asking(c.first, c.second);
    constraints.useSuitLengths.fill(!c.types);
    constraints.numGenHands = c.hands;
    EXPECT_EQ(Told(CheckConstraints(constraints)), c.told) << &c - kCases;
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
  } kCases[] = {{true, Points(13, 13), Points(17, 17)},
                {false, Points(14), {}},
                {false, Points(0, 12), {}},
                {false, {}, Points(18)},
                {true, {}, Points(18), 1},
                {true, Min(4, 4, 3, 2), Max(6, 3, 2, 2)},
                {false, Min(4, 4, 3, 3), {}},
                {false, Max(3, 4, 4, 4), {}}};
  for (const auto& c : kCases) {
    Constraints constraints = Asking(c.first, c.second);
    constraints.numGenHands = c.hands;
    EXPECT_EQ(MeetsConstraints(constraints, hands, Seat::West), c.meets) << &c - kCases;
  }
  Constraints balanced = Asking(Points(13), {});
  balanced.useSuitLengths[kOne] = false;
  EXPECT_TRUE(MeetsConstraints(balanced, hands, Seat::East));
  balanced.relativeToDealer = true;  // East is no balanced hand
  EXPECT_FALSE(MeetsConstraints(balanced, hands, Seat::East));
  EXPECT_EQ(SeatOf(balanced, kTwo, Seat::West), Seat::North);
}

TEST(IsOfType, KnowsTheShapes) {
  using enum HandType;
  const struct {
    HandType type;
    int option;
    const char* shapes;  // "!" before what is none
  } kCases[] = {{Balanced, 0, "5332 3235 4432 3433 !4441 !5422 !6322"},
                {Balanced, 1, "3235 2353 4432 !5332 !3523"},
                {Weak2, 0, "1651 6322 !3262 !5332 !7222"},
                {Weak2, 1, "3262 !3226"},
                {FourFourFourOne, 0, "4144 !4432"},
                {Preempt, 0, "1237 8311 !6610"}};
  for (const auto& c : kCases) {
    std::istringstream words(c.shapes);
    for (std::string word; words >> word;) {
      PerSuit<int> lengths;
      std::transform(word.end() - 4, word.end(), lengths.begin(),
                     [](char digit) { return digit - '0'; });
      EXPECT_EQ(IsOfType(c.type, c.option, lengths), word[0] != '!') << word;
    }
  }
}

}  // namespace
}  // namespace tricklet
