#include "formats/results/board_points.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "core/comparison.h"
#include "formats/results/ruling.h"
#include "formats/results/seated_pair.h"

namespace tricklet {
namespace {

constexpr double kWhole = 100;  // per cent
constexpr float kMostPoints = 1e6;

/// Points have few decimals, which single precision blurs: 3.3 is to be 3.3 when points are added
/// and compared.
double Exact(float points) {
  constexpr double kScale = 10'000;
  return std::round(static_cast<double>(points) * kScale) / kScale;
}

/// The points of both sides are given, and they are such as can be.
bool HasBoth(const TravellerRow& row) {
  return std::all_of(row.points.begin(), row.points.end(),
                     [](const auto& own) { return own && std::abs(*own) <= kMostPoints; });
}

double SumOf(const TravellerRow& row) {
  return Exact(row.points[Side::NorthSouth].value_or(0)) +
         Exact(row.points[Side::EastWest].value_or(0));
}

/// What the sides of a table with a score have together, or would have, by the percentages of the
/// ruling, at one without; nothing where the row does not show it.
std::optional<double> SumShown(const TravellerRow& row, bool rulings) {
  if (!HasBoth(row)) return std::nullopt;
  if (!rulings) return row.score ? std::optional(SumOf(row)) : std::nullopt;
  const auto shares = PercentagesOf(row.adjusted);
  const auto& [ns, ew] = shares.values;
  if (!ns || !ew || *ns + *ew <= 0) return std::nullopt;
  return Exact(static_cast<float>(SumOf(row) * kWhole / (*ns + *ew)));
}

/// The sum that most rows show; of several the largest.
std::optional<double> UsualSum(const Traveller& traveller, bool rulings) {
  std::map<double, int> counts;
  for (const TravellerRow& row : traveller.rows) {
    if (const auto sum = SumShown(row, rulings)) ++counts[*sum];
  }
  std::optional<double> usual;
  int most = 0;
  for (const auto& [sum, count] : counts) {
    if (count < most) continue;
    most = count;
    usual = sum;
  }
  return usual && *usual > 0 ? usual : std::nullopt;
}

std::optional<double> TopOfFile(const Traveller& traveller) {
  const auto top = UsualSum(traveller, false);
  return top ? top : UsualSum(traveller, true);
}

bool IsWithin(const TravellerRow& row, double top) {
  return HasBoth(row) && std::all_of(row.points.begin(), row.points.end(), [top](const auto& own) {
           return Exact(*own) >= 0 && Exact(*own) <= top;
         });
}

/// The points of the file; nothing when one with a score has none, or none that can be.
std::optional<BoardPoints> PointsOfFile(const Traveller& traveller) {
  BoardPoints points{TopOfFile(traveller), {}};
  if (!points.top) return std::nullopt;
  for (const TravellerRow& row : traveller.rows) {
    points.rows.emplace_back();
    const bool given = IsWithin(row, *points.top);
    if (row.score && !given) return std::nullopt;
    if (!given || (!row.HasResult() && SumOf(row) <= 0)) continue;
    for (const Side side : kSides) points.rows.back()[side] = Exact(*row.points[side]);
  }
  return points;
}

BoardPoints ComputedPoints(const Traveller& traveller) {
  std::vector<std::optional<int>> scores;
  scores.reserve(traveller.rows.size());
  for (const TravellerRow& row : traveller.rows) scores.push_back(row.score);
  const auto played = std::count_if(scores.begin(), scores.end(),
                                    [](const auto& score) { return score.has_value(); });
  BoardPoints computed{std::nullopt, {}};
  computed.rows.resize(scores.size());
  if (played < 2) return computed;  // a single score has nothing to be compared with
  computed.top = static_cast<double>(2 * (played - 1));
  const auto points = MatchPoints(scores);
  for (std::size_t row = 0; row < points.size(); ++row) {
    if (!points[row]) continue;
    for (const Side side : kSides) computed.rows[row][side] = (*points[row])[side];
  }
  return computed;
}

}  // namespace

BoardPoints MatchPointsOf(const Traveller& traveller) {
  auto given = PointsOfFile(traveller);
  BoardPoints points = given ? std::move(*given) : ComputedPoints(traveller);
  if (!points.top) return points;
  for (std::size_t row = 0; row < points.rows.size(); ++row) {
    const auto shares = PercentagesOf(traveller.rows[row].adjusted);
    for (const Side side : kSides) {
      if (points.rows[row][side] || !shares[side]) continue;
      points.rows[row][side] = *points.top * Exact(*shares[side]) / kWhole;
    }
  }
  return points;
}

BoardPoints ImpsOf(const Traveller& traveller, int comparisons) {
  BoardPoints points;
  for (const TravellerRow& row : traveller.rows) {
    points.rows.emplace_back();
    for (const Side side : kSides) {
      const auto& own = row.points[side];
      if (!HasBoth(row) || (!row.HasResult() && *own == 0)) continue;
      points.rows.back()[side] = Exact(*own) / comparisons;
    }
  }
  return points;
}

std::optional<double> PercentageOf(const BoardPoints& points, std::size_t row, Side side) {
  const auto& own = points.rows.at(row)[side];
  if (!own || !points.top) return std::nullopt;
  return *own * kWhole / *points.top;
}

}  // namespace tricklet
