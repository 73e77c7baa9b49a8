#include <array>
#include <vector>

#include <gtest/gtest.h>

#include "core/random_source.h"
#include "tests/support/chi_square.h"

namespace tricklet::test {
namespace {

TEST(RandomSource, ASeedGivesItsStream) {
  // By a program of its own, checked against the outputs that the generators' authors publish.
  RandomSource random(1234567);
  for (const double numerator : {1711339255655424.0, 888456430154533.0, 610767258815931.0}) {
    EXPECT_EQ(random.Rnd(), numerator / 9007199254740992.0);  // 2^53
  }
  EXPECT_NE(RandomSource().Rnd(), RandomSource().Rnd()) << "seeded by the system";
}

TEST(RandomSource, IntegersAreUniform) {
  RandomSource random(1);
  for (const int size : {2, 3, 13, 39, 52}) {
    std::vector<long> counts(static_cast<std::size_t>(size));
    for (int i = 0; i < 100000; ++i) {
      const int number = RandomBetween(-5, size - 6, random) + 5;
      ++counts.at(static_cast<std::size_t>(number));
    }
    EXPECT_LT(ChiSquareDeviation(counts, std::vector<double>(counts.size(), 1.0)), 4) << size;
  }
  EXPECT_EQ(RandomBetween(7, 7, random), 7);
  // Of three billion numbers the lower third would come twice as often were it not for redrawing.
  int low = 0;
  for (int i = 0; i < 30000; ++i) low += random.Below(3000000000U) < 1500000000U ? 1 : 0;
  EXPECT_NEAR(low, 15000, 350);
}

TEST(WeightedPick, FollowsTheWeightsOfTheRange) {
  const std::vector<double> weights{100, 3, 0, 1, 6, 0, 100};
  RandomSource random(2);
  std::array<long, 7> counts{};
  for (int i = 0; i < 100000; ++i) {
    ++counts.at(static_cast<std::size_t>(WeightedPick(weights, 1, 5, random)));
  }
  EXPECT_EQ(counts[0] + counts[2] + counts[5] + counts[6], 0);
  EXPECT_LT(ChiSquareDeviation({counts[1], counts[3], counts[4]}, {3, 1, 6}), 4);
  EXPECT_EQ(WeightedPick(weights, 2, 2, random), 2);
  EXPECT_EQ(WeightedPick(std::vector<double>{0, 0, 0}, 1, 2, random), 1);
}

}  // namespace
}  // namespace tricklet::test
