// Match points and IMPs.
#include "core/comparison.h"

#include <limits>
#include <random>

#include <gtest/gtest.h>

namespace tricklet {
namespace {

using Scores = std::vector<std::optional<int>>;

TEST(Comparison, ImpScaleOfTheLaws) {
  // The law's own lines: the least differences that are worth 1, 2, 3 ... IMPs.
  constexpr int kLeast[] = {20,  50,  90,   130,  170,  220,  270,  320,  370,  430,  500,  600,
                            750, 900, 1100, 1300, 1500, 1750, 2000, 2250, 2500, 3000, 3500, 4000};
  int imps = 0;
  for (const int least : kLeast) {
    EXPECT_EQ(ToImps(least - 10), imps) << least;
    EXPECT_EQ(ToImps(10 - least), -imps) << least;
    ++imps;
    EXPECT_EQ(ToImps(least), imps) << least;
    EXPECT_EQ(ToImps(-least), -imps) << least;
  }
  constexpr int kMost = std::numeric_limits<int>::max();
  EXPECT_EQ(ToImps(kMost), 24);
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
