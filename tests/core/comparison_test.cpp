// Match points and IMPs.
#include "core/comparison.h"

#include <limits>
#include <random>

#include <gtest/gtest.h>

namespace tricklet {
namespace {

using Scores = std::vector<std::optional<int>>;

TEST(Comparison, ImpScaleOfTheLaws) {
  // The law's own lines: from, to, IMPs.
  struct Line {
    int from, to, imps;
  };
  constexpr Line kLines[] = {
      {0, 10, 0},       {20, 40, 1},      {50, 80, 2},      {90, 120, 3},     {130, 160, 4},
      {170, 210, 5},    {220, 260, 6},    {270, 310, 7},    {320, 360, 8},    {370, 420, 9},
      {430, 490, 10},   {500, 590, 11},   {600, 740, 12},   {750, 890, 13},   {900, 1090, 14},
      {1100, 1290, 15}, {1300, 1490, 16}, {1500, 1740, 17}, {1750, 1990, 18}, {2000, 2240, 19},
      {2250, 2490, 20}, {2500, 2990, 21}, {3000, 3490, 22}, {3500, 3990, 23}, {4000, 15200, 24}};
  for (const Line& line : kLines) {
    for (const int difference : {line.from, line.to}) {
      EXPECT_EQ(ToImps(difference), line.imps) << difference;
      EXPECT_EQ(ToImps(-difference), -line.imps) << -difference;
    }
  }
}

TEST(Comparison, MatchPointsOfATraveller) {
  struct Case {
    const char* what;
    Scores scores;
    std::vector<std::optional<PerSide<int>>> points;
  };
  const std::vector<Case> cases{
      {"six tables with a tie",
       {{620}, {790}, {600}, {-100}, {170}, {620}},
       {{{{7, 3}}}, {{{10, 0}}}, {{{4, 6}}}, {{{0, 10}}}, {{{2, 8}}}, {{{7, 3}}}}},
      {"one table", {{420}}, {{{{0, 0}}}}},
      {"all equal", {{0}, {0}, {0}}, {{{{2, 2}}}, {{{2, 2}}}, {{{2, 2}}}}},
      {"one not played", {{50}, std::nullopt, {-50}}, {{{{2, 0}}}, std::nullopt, {{{0, 2}}}}},
      {"none played", {std::nullopt, std::nullopt}, {std::nullopt, std::nullopt}},
      {"no table", {}, {}},
  };
  for (const Case& example : cases) {
    EXPECT_EQ(MatchPoints(example.scores), example.points) << example.what;
  }
}

TEST(Comparison, CrossImpsOfATraveller) {
  // 620 against 600, -100 and 170: 1 + 12 + 10, and so on by the law's table.
  const Scores scores{{620}, {600}, std::nullopt, {-100}, {170}};
  EXPECT_EQ(CrossImps(scores), (Scores{{23}, {21}, std::nullopt, {-12 - 12 - 7}, {-10 - 10 + 7}}));
  constexpr int kMost = std::numeric_limits<int>::max();
  EXPECT_EQ(CrossImps(Scores{{kMost}, {-kMost - 1}}), (Scores{{24}, {-24}}))
      << "far from any score";
}

/// Table by table: a score has the IMPs against each other one, and two match points for each that
/// it beats and one for each equal one.
TEST(Comparison, RandomTravellersComparedTableByTable) {
  std::mt19937 random(20251121);  // NOLINT: the same travellers each time
  for (int round = 0; round < 200; ++round) {
    Scores scores(random() % 16 + 1);
    for (auto& score : scores) score = 10 * static_cast<int>(random() % 60) - 300;
    const auto points = MatchPoints(scores);
    const auto imps = CrossImps(scores);
    for (std::size_t table = 0; table < scores.size(); ++table) {
      const int own = scores[table].value_or(0);
      int sum = 0;
      PerSide<int> matchPoints{{-1, -1}};  // its own score is none of the others
      for (const auto& each : scores) {
        const int other = each.value_or(0);
        sum += ToImps(own - other);
        matchPoints[Side::NorthSouth] += own < other ? 0 : own > other ? 2 : 1;
        matchPoints[Side::EastWest] += own > other ? 0 : own < other ? 2 : 1;
      }
      EXPECT_EQ(imps[table], sum);
      EXPECT_EQ(points[table], matchPoints);
    }
  }
}

}  // namespace
}  // namespace tricklet
