// A play solved position by position, for libraries that have no call for whole plays.
#pragma once

#include <string>

#include "analysis/solver.h"

namespace tricklet {

/// After so many cards each hand has one left, and nothing can go otherwise.
inline constexpr std::size_t kCardsBeforeLastTrick = kCardsInPack - kSeats;

/// Asks `solver` for every position of `play` (`Solver::SolveCards`). Returns the text of what went
/// wrong, empty on success.
std::string SolveByPositions(Solver& solver, const SolverPlay& play, PlayTricks& tricks);

}  // namespace tricklet
