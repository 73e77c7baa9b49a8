#include "core/comparison.h"

#include <algorithm>
#include <cstdlib>

namespace tricklet {
namespace {

/// 2 for a better score, 1 for an equal one.
int PointsAgainst(int own, int other) {
  if (own == other) return 1;
  return own > other ? 2 : 0;
}

/// For each score the sum of `compare(own, other)` over the other tables that have one.
template <class Compare>
std::vector<std::optional<int>> SumAgainstOthers(BoardScores scores, Compare compare) {
  std::vector<std::optional<int>> sums(scores.size());
  for (std::size_t table = 0; table < scores.size(); ++table) {
    const std::optional<int> own = scores[table];
    if (!own) continue;
    int sum = 0;
    for (std::size_t i = 0; i < scores.size(); ++i) {
      const std::optional<int> other = scores[i];
      if (i != table && other) sum += compare(*own, *other);
    }
    sums[table] = sum;
  }
  return sums;
}

}  // namespace

std::vector<std::optional<PerSide<int>>> MatchPoints(BoardScores scores) {
  const auto played = std::count_if(scores.begin(), scores.end(),
                                    [](const auto& score) { return score.has_value(); });
  const int top = 2 * (static_cast<int>(played) - 1);
  std::vector<std::optional<PerSide<int>>> points(scores.size());
  const auto northSouth = SumAgainstOthers(scores, PointsAgainst);
  for (std::size_t table = 0; table < scores.size(); ++table) {
    if (const auto own = northSouth[table]) points[table] = PerSide<int>{{*own, top - *own}};
  }
  return points;
}

int ToImps(int difference) {
  const auto* const above =
      std::upper_bound(kImpScale.begin(), kImpScale.end(), std::abs(difference));
  const int imps = static_cast<int>(above - kImpScale.begin());
  return difference < 0 ? -imps : imps;
}

std::vector<std::optional<int>> CrossImps(BoardScores scores) {
  return SumAgainstOthers(scores, [](int own, int other) { return ToImps(own - other); });
}

}  // namespace tricklet
