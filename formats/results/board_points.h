// What each result of a board is worth, as it counts in a ranking.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "core/notation.h"
#include "formats/results/traveller.h"

namespace tricklet {

/// The points of a board.
struct BoardPoints {
  /// The match points that a table can have; nothing with IMPs, and where nobody has any.
  std::optional<double> top;
  /// Those of each row of the traveller; nothing where it does not count.
  std::vector<PerSide<std::optional<double>>> rows;
};

/// The match points of the file where it gives those of all results, else those that follow from
/// the scores (Laws of Duplicate Bridge, 78A). Of the file's, the top is what the two sides of most
/// tables with a score add up to. A ruling for which there are no points gets its percentage of the
/// top.
BoardPoints MatchPointsOf(const Traveller& traveller);

/// The IMPs of the traveller, each divided by `comparisons`.
BoardPoints ImpsOf(const Traveller& traveller, int comparisons = 1);

/// The match points of `side` at the table of `row` in per cent of the top, 0..100; nothing where
/// there are none.
std::optional<double> PercentageOf(const BoardPoints& points, std::size_t row, Side side);

}  // namespace tricklet
