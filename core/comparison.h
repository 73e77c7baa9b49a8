// Scores of one board compared with each other: match points and international match points.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "core/notation.h"

namespace tricklet {

/// The scores of a board in the order of its traveller, each from North-South's point of view;
/// nothing where a table has none (not played, or adjusted otherwise than in points). Such a table
/// is compared with nobody: it gets nothing and gives nothing.
using BoardScores = std::span<const std::optional<int>>;

/// Match points (Laws of Duplicate Bridge, 78A) on the scale of two for each score beaten and one
/// for each equal one: 0..2 * (scores - 1), and the two sides of a table add up to the upper bound.
/// Scores that are missing are not factored in.
std::vector<std::optional<PerSide<int>>> MatchPoints(BoardScores scores);

/// The scale of international match points (Laws of Duplicate Bridge, 78B): a difference of at
/// least `kImpScale[n]` points is worth n + 1 IMPs, up to 24.
inline constexpr std::array kImpScale{20,   50,   90,   130,  170,  220,  270,  320,
                                      370,  430,  500,  600,  750,  900,  1100, 1300,
                                      1500, 1750, 2000, 2250, 2500, 3000, 3500, 4000};

/// A difference of scores in IMPs, -24..24, with its sign.
int ToImps(int difference);

/// Cross-IMPs of North-South: the sum of its IMPs against every other table. East-West have the
/// same with the other sign.
std::vector<std::optional<int>> CrossImps(BoardScores scores);

}  // namespace tricklet
