// What is expected of deals, and how ordinary a set of them is.
#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <numeric>
#include <utility>

#include <gtest/gtest.h>

#include "frequencies/deal_frequencies.h"
#include "frequencies/frequency_sheet.h"
#include "generate/deal.h"

namespace tricklet::test {
namespace {

/// In how many ways one hand or the other can get each of the cards 0..`cards` - 1, by what the
/// first has then; `take` adds a card to it, and is false where it has too many.
template <class State>
std::map<State, double> WaysByCard(int cards, const std::function<bool(State&, int card)>& take) {
  std::map<State, double> ways{{State{}, 1.0}};
  for (int card = 0; card < cards; ++card) {
    std::map<State, double> next = ways;
    for (const auto& [state, count] : ways) {
      State with = state;
      if (take(with, card)) next[with] += count;
    }
    ways = std::move(next);
  }
  return ways;
}

// The formulas against counting card by card, which knows none of them. All counts are exact.
TEST(APriori, IsThatOfCountingCardByCard) {
  const double hands = 635'013'559'600;  // C(52,13)
  std::map<Shape, double> shapes;
  const auto lengths = WaysByCard<Shape>(kCardsInPack, [](Shape& held, int card) {
    ++held.at(static_cast<std::size_t>(card / kRanks));
    return std::accumulate(held.begin(), held.end(), 0) <= kCardsInHand;
  });
  for (const auto& [held, count] : lengths) {
    Shape shape = held;
    if (std::accumulate(shape.begin(), shape.end(), 0) < kCardsInHand) continue;
    std::sort(shape.begin(), shape.end(), std::greater<>());
    shapes[shape] += count;
  }
  EXPECT_EQ(shapes.size(), kShapes);
  for (const auto& [shape, count] : shapes) {
    EXPECT_DOUBLE_EQ(ChanceOfShape(shape), count / hands) << shape[0] << shape[1] << shape[2];
  }

  using Pair = std::pair<int, int>;  // cards, points
  const auto points = WaysByCard<Pair>(kCardsInPack, [](Pair& held, int card) {
    held.second += std::max(4 - card % kRanks, 0);
    return ++held.first <= kCardsInHand;
  });
  for (int each = 0; each <= kMostPointsOfHand; ++each) {
    EXPECT_DOUBLE_EQ(ChanceOfPoints(each), points.at({kCardsInHand, each}) / hands) << each;
  }

  const double deals = 10'400'600;  // of 26 cards to two hands: C(26,13)
  for (int missing = 1; missing <= kMostMissing; ++missing) {
    const auto breaks = WaysByCard<Pair>(2 * kCardsInHand, [missing](Pair& held, int card) {
      held.second += card < missing ? 1 : 0;
      return ++held.first <= kCardsInHand;
    });
    for (int longer = (missing + 1) / 2; longer <= missing; ++longer) {
      const double other = longer * 2 == missing ? 0 : breaks.at({kCardsInHand, missing - longer});
      EXPECT_DOUBLE_EQ(ChanceOfBreak(missing, longer),
                       (breaks.at({kCardsInHand, longer}) + other) / deals)
          << missing << " " << longer;
    }
  }
}

DealTally RandomDeals(int deals, std::uint64_t seed) {
  RandomSource random(seed);
  DealTally tally;
  for (int i = 0; i < deals; ++i) {
    HandTable hands;
    Random(hands, random);
    tally.Add(hands);
  }
  return tally;
}

TEST(Ordinariness, IsEvenlySpreadOverRandomSets) {
  // The shares of sets that are random themselves: a third in each third, and each rarely beyond.
  constexpr int kSets = 60;
  std::array<int, 3> thirds{};
  for (std::uint64_t seed = 1; seed <= kSets; ++seed) {
    const double share = OrdinarinessOf(RandomDeals(12, seed)).together.value_or(-1);
    ASSERT_GT(share, 0);
    ++thirds.at(static_cast<std::size_t>(std::min(share * 3, 2.0)));
  }
  // Chi-square with two degrees of freedom exceeds 13.8 once in a thousand.
  double chiSquare = 0;
  for (const int count : thirds) chiSquare += std::pow(count - kSets / 3, 2) / (kSets / 3.0);
  EXPECT_LT(chiSquare, 13.8) << thirds[0] << " " << thirds[1] << " " << thirds[2];
}

TEST(Ordinariness, KnowsWildHandsFromOrdinaryOnes) {
  DealTally wild;
  // Each deal with a suit of eight cards or more.
  RandomSource random(7);
  while (wild.deals < 36) {
    HandTable hands;
    Random(hands, random);
    const bool eight = std::any_of(kAllSeats.begin(), kAllSeats.end(), [&](Seat seat) {
      return std::any_of(hands[seat].begin(), hands[seat].end(),
                         [](Holding holding) { return holding.Count() >= 8; });
    });
    if (eight) wild.Add(hands);
  }
  const Ordinariness ordinary = OrdinarinessOf(wild);
  EXPECT_LT(ordinary.share[Aspect::Shapes].value_or(1), 0.005);
  const DealFrequencies frequencies = FrequenciesOf(wild, {}, ordinary);
  EXPECT_EQ(
      frequencies.verdict,
      "Fewer than 1 in 200 sets of 36 boards dealt at random are like these: hardly by chance");
  EXPECT_FALSE(OrdinarinessOf(RandomDeals(4, 1)).together);
  int asked = 0;
  EXPECT_FALSE(OrdinarinessOf(wild, [&asked] { return ++asked < 3; }).together) << "ended";
  EXPECT_EQ(asked, 3);
}

TEST(ShareText, IsInPlainWords) {
  EXPECT_EQ(ShareText(0.97), "nearly all");
  EXPECT_EQ(ShareText(0.42), "4 in 10");
  EXPECT_EQ(ShareText(0.06), "1 in 10");
  EXPECT_EQ(ShareText(0.034), "3 in 100");
  EXPECT_EQ(ShareText(0.001), "fewer than 1 in 200");
}

TEST(DealFrequencies, CountsWhatAnExtremeDealHas) {
  // Each seat has a whole suit: four hands of 10 points, four suits of which one side has 13.
  HandTable hands;
  for (const Seat seat : kAllSeats) {
    hands[seat][static_cast<Suit>(seat)] = Holding::FromBits(Holding::kAllBits);
  }
  DealTally tally;
  tally.Add(hands);
  EXPECT_EQ(tally.points.at(10), 4);
  EXPECT_EQ(tally.shapes.at(static_cast<std::size_t>(ShapeIndex({0, 13, 0, 0}))), 4);
  EXPECT_EQ(tally.breaks.at(0).at(0), 4);
  EXPECT_EQ(tally.pairPoints.at(20), 1);
  MakeableTally makeable;
  MakeableTable table;
  table[TableSeat::West][TableStrain::Clubs] = 11;
  makeable.Add(table);
  table[TableSeat::East][TableStrain::Spades] = 13;
  makeable.Add(table);
  const std::string text = CsvFrequencies(FrequenciesOf(tally, makeable, {}));
  for (const char* line : {"Games and slams,A game is makeable,deals,2,2,100.0,,\r\n",
                           "Games and slams,A slam is makeable,deals,2,1,50.0,,\r\n",
                           "Points,10,hands,4,4,100.0,0.3762,9.4\r\n"}) {
    EXPECT_NE(text.find(line), std::string::npos) << line << text;
  }
}

}  // namespace
}  // namespace tricklet::test
