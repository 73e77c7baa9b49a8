// What is expected of deals, and how ordinary a set of them is.
#include <cmath>
#include <numeric>

#include <gtest/gtest.h>

#include "frequencies/deal_frequencies.h"
#include "frequencies/frequency_sheet.h"
#include "generate/deal.h"

namespace tricklet::test {
namespace {

// Percentages of shapes and breaks as in Borel and Cheron, "Theorie mathematique du bridge" (1940)
// and, like those of points, in the mathematical tables of "The Official Encyclopedia of Bridge".
TEST(APriori, IsThatOfThePublishedTables) {
  const std::vector<std::pair<Shape, double>> shapes{
      {{4, 4, 3, 2}, 21.5512}, {{5, 3, 3, 2}, 15.5168}, {{5, 4, 3, 1}, 12.9307},
      {{5, 4, 2, 2}, 10.5797}, {{4, 3, 3, 3}, 10.5361}, {{6, 3, 2, 2}, 5.6425},
      {{6, 4, 2, 1}, 4.7021},  {{4, 4, 4, 1}, 2.9932},  {{7, 3, 2, 1}, 1.8808}};
  for (const auto& [shape, percent] : shapes) {
    EXPECT_NEAR(100 * ChanceOfShape(shape), percent, 0.00005) << percent;
  }
  const std::vector<std::array<double, 3>> breaks{{2, 1, 52},     {3, 2, 78},     {4, 2, 40.696},
                                                  {4, 3, 49.739}, {5, 3, 67.826}, {5, 4, 28.261},
                                                  {6, 3, 35.528}, {6, 4, 48.447}, {6, 6, 1.491}};
  for (const auto& [missing, longer, percent] : breaks) {
    const double chance = ChanceOfBreak(static_cast<int>(missing), static_cast<int>(longer));
    EXPECT_NEAR(100 * chance, percent, 0.0006) << missing << " " << longer;
  }
  EXPECT_NEAR(100 * ChanceOfPoints(0), 0.3639, 0.00005);
  EXPECT_NEAR(100 * ChanceOfPoints(10), 9.4051, 0.00005);
  EXPECT_NEAR(100 * ChanceOfPoints(20), 0.6435, 0.00005);
  double all = 0;
  for (const Shape& shape : AllShapes()) all += ChanceOfShape(shape);
  EXPECT_NEAR(all, 1, 1e-12);
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
