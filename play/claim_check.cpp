#include "play/claim_check.h"

#include <algorithm>

#include "play/best_cards.h"

namespace tricklet {

std::optional<ClaimCheck> CheckClaim(Solver& solver, const PlayState& state, const Board& played,
                                     Side side, int tricks) {
  const auto position = PositionOf(state, played.trumps);
  if (!position || !state.onPlay) return std::nullopt;
  const Seat onPlay = *state.onPlay;
  const auto scores = BestCards(solver, *position, state.tricksWon[SideOf(onPlay)]);
  if (scores.empty()) return std::nullopt;
  const int most = std::ranges::max_element(scores, {}, &CardScore::tricks)->tricks;
  ClaimCheck check;
  check.claimed = tricks;
  check.best = SideOf(onPlay) == side ? most : kTricks - most;
  check.by = SideOf(onPlay) == side ? SeatAfter(onPlay) : onPlay;
  if (check.by == PartnerOf(played.declarer)) check.by = played.declarer;
  return check;
}

std::string ClaimCheckText(const ClaimCheck& check) {
  const std::string claim = "Claim " + std::to_string(check.claimed) + ": ";
  if (check.best < check.claimed) {
    return claim + std::string(SeatName[check.by]) + " can hold it to " +
           std::to_string(check.best);
  }
  std::string holds = claim + "it holds against any defence";
  if (check.best == check.claimed) return holds;
  return holds + ", and " + std::to_string(check.best) + " can be made";
}

}  // namespace tricklet
