// A play that is being made, as a record of it.
#pragma once

#include "core/recorded_play.h"
#include "play/card_play.h"

namespace tricklet {

/// The cards of `play` so far, in the contract that is played. Declarer's tricks are known when the
/// play has ended, by its last card or by a claim. Without cards where no play is on.
RecordedPlay RecordOfPlay(const CardPlay& play);

/// The card that led from `before` to `after`; nothing for a claim.
std::optional<Card> CardBetween(const PlayState& before, const PlayState& after);

}  // namespace tricklet
