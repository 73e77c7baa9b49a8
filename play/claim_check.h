// A claim against the best defence, with all hands seen.
#pragma once

#include <optional>
#include <string>

#include "analysis/solver.h"
#include "play/card_play.h"

namespace tricklet {

struct ClaimCheck {
  int claimed = 0;        ///< tricks in all for the side that claims, 0..13
  int best = 0;           ///< those that it ends with double-dummy, 0..13
  Seat by = Seat::North;  ///< the next of its opponents to play; never dummy, whose declarer plays
  friend bool operator==(const ClaimCheck&, const ClaimCheck&) = default;
};

/// What a claim of `tricks` in all by `side` is worth in `state` of the play of `played`. Nothing
/// when nobody is on play or the solver cannot tell. May be called from any thread.
std::optional<ClaimCheck> CheckClaim(Solver& solver, const PlayState& state, const Board& played,
                                     Side side, int tricks);

/// "Claim 9: West can hold it to 8", "Claim 9: it holds against any defence", and with more to be
/// had "Claim 9: it holds against any defence, and 10 can be made".
std::string ClaimCheckText(const ClaimCheck& check);

}  // namespace tricklet
