// What is said of the calls of a board that keeps none of it itself.
#pragma once

#include "core/recorded_play.h"
#include "formats/results/traveller.h"

namespace tricklet {

/// What the records of `traveller` say of the calls of `board`, whose own file holds the calls
/// alone: by the first of them that has the same deal and the same auction and says anything. Empty
/// when there is none.
CallRemarks RemarksOn(const Board& board, const Traveller& traveller);

/// "2NT: 5-5 in the minors; Dbl: alerted", in one line; empty when nothing is said of any call.
std::string RemarksText(const Board& board, const CallRemarks& remarks);

}  // namespace tricklet
