// Deals that meet a script as boards of a library.
#pragma once

#include <memory>

#include "conditions/script.h"
#include "generate/board_run.h"
#include "generate/deal_run.h"
#include "library/session.h"

namespace tricklet {

struct StoreDealsOutcome : BoardRunOutcome {
  DealRunOutcome dealing = {};
};

/// Stores deals as the boards from `first` on in the current library, as `RunOverBoards` does, at
/// most up to the last board that a library can hold: `options.produce` is to say no more. Dealer
/// and vulnerability are those of the board numbers. With `analyse` the boards get their tables.
/// Tells when fewer deals than wanted have met the script.
StoreDealsOutcome StoreDeals(Session& session, const std::shared_ptr<const Script>& script,
                             Solver* solver, const DealRunOptions& options, int first,
                             bool analyse);

}  // namespace tricklet
