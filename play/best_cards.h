// What each card leads to double-dummy while a board is being played.
#pragma once

#include <optional>
#include <vector>

#include "analysis/solver.h"
#include "play/card_play.h"

namespace tricklet {

/// The position that the play has reached, as the solver takes it; nothing when nobody is on play.
std::optional<SolverPosition> PositionOf(const PlayState& state, Strain trumps);

/// For every legal card of the hand on play, the tricks, 0..13, that its side ends with when all
/// play on double-dummy: the `tricksWon` so far and those to come. Empty when the solver cannot
/// tell. May be called from any thread.
std::vector<CardScore> BestCards(Solver& solver, const SolverPosition& position, int tricksWon);

}  // namespace tricklet
