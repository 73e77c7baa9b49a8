// Match points and IMPs.
#include "core/comparison.h"

#include <limits>
#include <random>

#include <gtest/gtest.h>

namespace tricklet {
namespace {

using Scores = std::vector<std::optional<int>>;

TEST(Comparison, ImpScaleOfTheLaws) {
  // The law's own lines: the least and the greatest difference that are worth 0, 1, 2 ... IMPs.
  constexpr std::pair<int, int> kLines[] = {{0, 10},
                                            {20, 40},
                                            {50, 80},
                                            {90, 120},
                                            {130, 160},
                                            {170, 210},
                                            {220, 260},
                                            {270, 310},
                                            {320, 360},
                                            {370, 420},
                                            {430, 490},
                                            {500, 590},
                                            {600, 740},
                                            {750, 890},
                                            {900, 1090},
                                            {1100, 1290},
                                            {1300, 1490},
                                            {1500, 1740},
                                            {1750, 1990},
                                            {2000, 2240},
                                            {2250, 2490},
                                            {2500, 2990},
                                            {3000, 3490},
                                            {3500, 3990},
                                            {4000, std::numeric_limits<int>::max()}};
  int imps = 0;
  for (const auto& [least, greatest] : kLines) {
    for (const int difference : {least, greatest}) {
      EXPECT_EQ(ToImps(difference), imps) << difference;
      EXPECT_EQ(ToImps(-difference), -imps) << -difference;
    }
    ++imps;
  }
  constexpr int kMost = std::numeric_limits<int>::max();
  EXPECT_EQ(CrossImps(Scores{{kMost}, {-kMost - 1}}), (Scores{{24}, {-24}}));
}

/// Table by table: a score has the IMPs against each other one, and two match points for each that
/// it beats and one for each equal one; a table without a score has nothing.
TEST(Comparison, RandomTravellersComparedTableByTable) {
  std::mt19937 random(20251121);  // NOLINT: the same travellers each time
  for (int round = 0; round < 200; ++round) {
    Scores scores(random() % 16 + 1);
    for (auto& score : scores) {
      if (random() % 8 != 0) score = 10 * static_cast<int>(random() % 60) - 300;
    }
    Scores imps;
    std::vector<std::optional<PerSide<int>>> points;
    for (const auto& own : scores) {
      int sum = 0;
      PerSide<int> matchPoints{{-1, -1}};  // its own score is none of the others
      for (const auto& other : scores) {
        if (!own || !other) continue;
        sum += ToImps(*own - *other);
        matchPoints[Side::NorthSouth] += *own < *other ? 0 : *own > *other ? 2 : 1;
        matchPoints[Side::EastWest] += *own > *other ? 0 : *own < *other ? 2 : 1;
      }
      imps.push_back(own ? std::optional(sum) : std::nullopt);
      points.push_back(own ? std::optional(matchPoints) : std::nullopt);
    }
    EXPECT_EQ(CrossImps(scores), imps);
    EXPECT_EQ(MatchPoints(scores), points);
  }
}

}  // namespace
}  // namespace tricklet
