#include "core/comparison.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <map>

namespace tricklet {
namespace {

/// The scores of the tables that have one, in ascending order. A board may have thousands of them,
/// so what a table gets is found by counting, not by going through all the others.
class SortedScores {
 public:
  explicit SortedScores(BoardScores scores) {
    for (const std::optional<int> score : scores) {
      if (score) sorted_.push_back(*score);
    }
    std::sort(sorted_.begin(), sorted_.end());
  }

  int Count() const { return static_cast<int>(sorted_.size()); }
  /// How many scores are at most, and how many below, `score`.
  int UpTo(std::int64_t score) const {
    return static_cast<int>(std::upper_bound(sorted_.begin(), sorted_.end(), score) -
                            sorted_.begin());
  }
  int Below(std::int64_t score) const { return UpTo(score - 1); }

 private:
  std::vector<std::int64_t> sorted_;
};

/// Two for each score beaten and one for each equal one other than the score itself.
int PointsOf(int score, const SortedScores& scores) {
  return scores.Below(score) + scores.UpTo(score) - 1;
}

/// A difference counts one IMP for each line of the scale that it reaches.
int ImpsOf(int score, const SortedScores& scores) {
  int imps = 0;
  for (const int line : kImpScale) {
    imps += scores.UpTo(std::int64_t{score} - line);
    imps -= scores.Count() - scores.Below(std::int64_t{score} + line);
  }
  return imps;
}

/// `sumOf` of every score. Each different score is worked out only once: a board has far fewer of
/// them than tables.
template <class Sum>
std::vector<std::optional<int>> SumAgainstOthers(BoardScores scores, Sum sumOf) {
  const SortedScores sorted(scores);
  std::map<int, int> known;
  std::vector<std::optional<int>> sums(scores.size());
  for (std::size_t table = 0; table < scores.size(); ++table) {
    const std::optional<int> own = scores[table];
    if (!own) continue;
    const auto [sum, isNew] = known.try_emplace(*own);
    if (isNew) sum->second = sumOf(*own, sorted);
    sums[table] = sum->second;
  }
  return sums;
}

}  // namespace

std::vector<std::optional<PerSide<int>>> MatchPoints(BoardScores scores) {
  const auto played = std::count_if(scores.begin(), scores.end(),
                                    [](const auto& score) { return score.has_value(); });
  const int top = 2 * (static_cast<int>(played) - 1);
  std::vector<std::optional<PerSide<int>>> points(scores.size());
  const auto northSouth = SumAgainstOthers(scores, PointsOf);
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
  return SumAgainstOthers(scores, ImpsOf);
}

}  // namespace tricklet
