#include "generate/constraints.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "generate/hand_type.h"
#include "tests/support/asked.h"
#include "tests/support/hands.h"
#include "tests/support/words.h"

namespace tricklet {
namespace {

using test::Asked;
using test::Asking;
using test::Max;
using test::Min;
using test::OfType;
using test::Points;

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
  constexpr HandType kBalanced = HandType::Balanced;
  const struct {
    Asked first;
    Asked second;
    const char* told;
    int hands = 2;
  } kCases[] = {
      {Min(4, 4, 4, 1), Max(4, 4, 4, 1), ""},
      {{}, Min(3, 3, 5, 3), "2 minimum of D: Suit minima add up to more than 13 in hand 2"},
      {Max(5, 4, 3, 0), {}, "1 maximum of C: Suit maxima add up to less than 13 in hand 1"},
      {Max(10, 3, 0, 0, {19, 37}), {}, ""},  // 10 + 9
      {{},
       Max(10, 3, 0, 0, {20, 37}),
       "2 points: Cannot have 20 points with the distribution for hand 2"},
      {OfType(kBalanced, Min(4, 4, 4, 4)), OfType(kBalanced, Max(3, 3, 3, 3)), ""},
      {Points(20), Points(20), ""},
      {Points(21), Points(20), "2 points: Too many minimum points between the 2 hands"},
      {Min(7, 0, 0, 0), Min(6, 0, 0, 0), ""},
      {Min(0, 0, 0, 12), Min(0, 0, 0, 2), "2 minimum of C: Too many Clubs between the 2 hands"},
      {east, {}, "2 direction: Hand 2 is the same direction as hand 1"},
      {east, Min(4, 4, 4, 4), "", 1}};
  for (const auto& c : kCases) {
    Constraints constraints = Asking(c.first, c.second);
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
    EXPECT_FALSE(CheckConstraints(Asking({}, OfType(type, Points(most[type]))))) << HandTypes[type];
    EXPECT_TRUE(CheckConstraints(Asking({}, OfType(type, Points(most[type] + 1)))))
        << HandTypes[type];
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
  Constraints balanced = Asking(OfType(HandType::Balanced, Points(13)), {});
  EXPECT_TRUE(MeetsConstraints(balanced, hands, Seat::East));
  balanced.relativeToDealer = true;  // East is no balanced hand
  EXPECT_FALSE(MeetsConstraints(balanced, hands, Seat::East));
  EXPECT_EQ(SeatOf(balanced, GenHand::Second, Seat::West), Seat::North);
}

TEST(IsOfType, KnowsTheShapes) {
  using enum HandType;
  const std::string kShapes =
      "5332 2533 2353 4432 3433 4441 1444 5422 6322 3262 3226 1651 7222 2722 1237 8311";
  const struct {
    HandType type;
    int option;
    const char* shapes;
  } kCases[] = {{Balanced, 0, "5332 2533 2353 4432 3433"},
                {Balanced, 1, "2353 4432 3433"},
                {Weak2, 0, "6322 1651"},
                {Weak2, 1, "6322 3262 1651"},
                {FourFourFourOne, 0, "4441 1444"},
                {Preempt, 0, "7222 2722 1237 8311"}};
  for (const auto& c : kCases) {
    const auto isOfType = [&c](const char* shape) {
      PerSuit<int> lengths;
      std::transform(shape, shape + 4, lengths.begin(), [](char digit) { return digit - '0'; });
      return IsOfType(c.type, c.option, lengths);
    };
    EXPECT_EQ(test::WordsWhere(kShapes, isOfType), c.shapes) << HandTypes[c.type] << c.option;
  }
}

}  // namespace
}  // namespace tricklet
