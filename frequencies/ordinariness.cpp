#include "frequencies/ordinariness.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "core/random_source.h"
#include "generate/deal.h"

namespace tricklet {
namespace {

constexpr double kLeastExpected = 5;
constexpr int kFewestDeals = 5;
constexpr int kDealsInAll = 400'000;
constexpr int kFewestSets = 400;
constexpr int kMostSets = 1'000;
constexpr std::uint64_t kSeed = 20'231;  // any would do; always the same one

/// Joins cells in their order, and keeps the measure of those that are complete.
class Cells {
 public:
  /// `planned` is what decides on joining, `expected` what the measure is taken against.
  void Add(double observed, double expected, double planned) {
    open_.observed += observed;
    open_.expected += expected;
    open_.planned += planned;
    if (open_.planned >= kLeastExpected) {
      cells_.push_back(open_);
      open_ = {};
    }
  }

  /// What is left joins the last cell of the group; a group of one cell says nothing.
  void EndGroup(Deviation& deviation) {
    if (!cells_.empty()) {
      cells_.back().observed += open_.observed;
      cells_.back().expected += open_.expected;
    }
    open_ = {};
    if (cells_.size() > 1) {
      for (const Cell& cell : cells_) {
        const double off = cell.observed - cell.expected;
        if (cell.expected > 0) deviation.chiSquare += off * off / cell.expected;
      }
      deviation.cells += static_cast<int>(cells_.size());
    }
    cells_.clear();
  }

 private:
  struct Cell {
    double observed = 0;
    double expected = 0;
    double planned = 0;
  };
  Cell open_;
  std::vector<Cell> cells_;
};

/// How likely the side with more cards of a suit lacks `missing` of them: it is one of two sides.
double ChanceOfMissing(int missing) {
  constexpr int kBothHands = 26;
  const auto ways = static_cast<double>(Ways(kRanks, missing)) *
                    static_cast<double>(Ways(kCardsInPack - kRanks, kBothHands - missing));
  return 2 * ways / static_cast<double>(Ways(kCardsInPack, kBothHands));
}

/// The chances, counted once.
struct Chances {
  std::array<double, kShapes> shapes{};
  std::array<double, kMostPointsOfHand + 1> points{};
  std::array<double, kMostMissing + 1> missing{};
  std::array<std::array<double, kMostMissing + 1>, kMostMissing + 1> breaks{};

  Chances() {
    for (std::size_t i = 0; i < shapes.size(); ++i) shapes.at(i) = ChanceOfShape(AllShapes()[i]);
    for (std::size_t i = 0; i < points.size(); ++i) {
      points.at(i) = ChanceOfPoints(static_cast<int>(i));
    }
    for (std::size_t m = 0; m < breaks.size(); ++m) {
      missing.at(m) = ChanceOfMissing(static_cast<int>(m));
      for (std::size_t longer = (m + 1) / 2; longer <= m; ++longer) {
        breaks.at(m).at(longer) = ChanceOfBreak(static_cast<int>(m), static_cast<int>(longer));
      }
    }
  }
};

template <std::size_t kSize>
Deviation DeviationOf(const std::array<int, kSize>& observed,
                      const std::array<double, kSize>& chances, int trials) {
  Deviation deviation;
  Cells cells;
  for (std::size_t i = 0; i < kSize; ++i) {
    const double expected = chances.at(i) * trials;
    cells.Add(observed.at(i), expected, expected);
  }
  cells.EndGroup(deviation);
  return deviation;
}

/// Against what is expected of as many suits as have so many cards missing. Which cells are joined
/// is decided by how many those would be, so that it is the same for all sets of a size.
Deviation DeviationOfBreaks(const DealTally& tally, const Chances& chances) {
  Deviation deviation;
  Cells cells;
  for (std::size_t m = 2; m < tally.breaks.size(); ++m) {
    const auto& row = tally.breaks.at(m);
    const int suits = std::accumulate(row.begin(), row.end(), 0);
    for (std::size_t longer = (m + 1) / 2; longer <= m; ++longer) {
      const double chance = chances.breaks.at(m).at(longer);
      cells.Add(row.at(longer), chance * suits,
                chance * chances.missing.at(m) * kSuits * tally.deals);
    }
    cells.EndGroup(deviation);
  }
  return deviation;
}

using Measures = EnumArray<Aspect, double, kAspects>;

Measures MeasuresOf(const DealTally& tally) {
  Measures measures;
  const auto deviations = DeviationsOf(tally);
  for (const Aspect aspect : kAllAspects) {
    measures[aspect] = deviations[aspect].value_or(Deviation()).chiSquare;
  }
  return measures;
}

/// Fewer when `goOn` says no.
std::vector<Measures> MeasuresOfRandomSets(int deals, int sets, const std::function<bool()>& goOn) {
  RandomSource random(kSeed);
  std::vector<Measures> all;
  all.reserve(static_cast<std::size_t>(sets));
  for (int i = 0; i < sets && (!goOn || goOn()); ++i) {
    DealTally tally;
    for (int deal = 0; deal < deals; ++deal) {
      HandTable hands;
      Random(hands, random);
      tally.Add(hands);
    }
    all.push_back(MeasuresOf(tally));
  }
  return all;
}

/// The set itself counts as one of them, so that no share is nothing at all.
template <class Measure>
double ShareAsFar(const std::vector<Measures>& sets, const Measures& own, const Measure& measure) {
  constexpr double kRounding = 1 - 1e-9;
  const double limit = measure(own) * kRounding;
  const auto farther = std::count_if(sets.begin(), sets.end(),
                                     [&](const Measures& each) { return measure(each) >= limit; });
  return static_cast<double>(farther + 1) / static_cast<double>(sets.size() + 1);
}

}  // namespace

EnumArray<Aspect, std::optional<Deviation>, kAspects> DeviationsOf(const DealTally& tally) {
  static const Chances chances;
  EnumArray<Aspect, std::optional<Deviation>, kAspects> deviations;
  const auto keep = [&](Aspect aspect, const Deviation& deviation) {
    if (deviation.cells > 1) deviations[aspect] = deviation;
  };
  keep(Aspect::Shapes, DeviationOf(tally.shapes, chances.shapes, tally.deals * kSeats));
  keep(Aspect::Points, DeviationOf(tally.points, chances.points, tally.deals * kSeats));
  keep(Aspect::Breaks, DeviationOfBreaks(tally, chances));
  return deviations;
}

Ordinariness OrdinarinessOf(const DealTally& tally, const std::function<bool()>& goOn) {
  Ordinariness ordinary;
  if (tally.deals < kFewestDeals) return ordinary;
  const int wanted = std::clamp(kDealsInAll / tally.deals, kFewestSets, kMostSets);
  const std::vector<Measures> sets = MeasuresOfRandomSets(tally.deals, wanted, goOn);
  if (static_cast<int>(sets.size()) < wanted) return ordinary;
  ordinary.sets = wanted;
  const Measures own = MeasuresOf(tally);
  const auto deviations = DeviationsOf(tally);
  Measures means;
  for (const Aspect aspect : kAllAspects) {
    for (const Measures& each : sets) means[aspect] += each[aspect] / ordinary.sets;
    if (!deviations[aspect]) continue;
    ordinary.share[aspect] =
        ShareAsFar(sets, own, [aspect](const Measures& each) { return each[aspect]; });
  }
  ordinary.together = ShareAsFar(sets, own, [&means](const Measures& each) {
    double sum = 0;
    for (const Aspect aspect : kAllAspects) {
      if (means[aspect] > 0) sum += each[aspect] / means[aspect];
    }
    return sum;
  });
  return ordinary;
}

}  // namespace tricklet
