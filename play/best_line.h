// Cards that the program plays, double-dummy: with all hands seen.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "analysis/solver.h"
#include "play/card_play.h"

namespace tricklet {

/// What the program is to play.
struct ProgramTurn {
  PlayState state;  ///< somebody is on play
  Strain trumps = Strain::NoTrump;
  bool toEnd = false;  ///< all that is left, for all four hands; else one card

  /// The same cards are asked for, whether the last trick has been gathered or not.
  bool SameAs(const ProgramTurn& other) const;
};

/// The one of `scores` that a sensible player would choose of those that lead to the most tricks,
/// for the hand on play in `state`: when following, the lowest; when discarding, the lowest that is
/// no trump; when leading, one of the longest suit, the lowest or the top of a sequence of honours.
/// Of what is still equal, the suit that ranks higher. Nothing when there is no score.
std::optional<Card> SensibleCard(const PlayState& state, Strain trumps,
                                 std::span<const CardScore> scores);

/// The card that the program plays in `state`: the only one that is legal, or the `SensibleCard` by
/// the solver. Nothing when nobody is on play or the solver cannot tell. May be called from any
/// thread.
std::optional<Card> ProgramCard(Solver& solver, const PlayState& state, Strain trumps);

/// The cards with which the program plays on from `state` for all four hands: to the end, or as
/// many as the solver could tell, 0..52. Ends early when `goOn`, asked before each card, returns
/// false. May be called from any thread.
std::vector<Card> BestLine(Solver& solver, PlayState state, Strain trumps,
                           const std::function<bool()>& goOn);

/// The cards for `turn`, by `ProgramCard` or `BestLine`.
std::vector<Card> CardsForTurn(Solver& solver, const ProgramTurn& turn,
                               const std::function<bool()>& goOn);

}  // namespace tricklet
