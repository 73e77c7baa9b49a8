// Deals that meet a script as boards of a library.
#pragma once

#include <memory>

#include "conditions/script.h"
#include "generate/deal_run.h"
#include "library/session.h"

namespace tricklet {

struct StoreDealsOutcome {
  DealRunOutcome run = {};
  int boardsStored = 0;
  bool refused = false;  ///< by the person, before anything was written
  bool failed = false;   ///< a board could not be stored; the person has been told why
};

/// Stores deals as the boards from `first` on in the current library, at most up to the last board
/// that a library can hold: `options.produce` is to say no more. Dealer and vulnerability are those
/// of the board numbers. Asks first about unsaved changes, and once about overwriting; loads the
/// first board at the end. What is replaced goes to the recycle bin.
StoreDealsOutcome StoreDeals(Session& session, const std::shared_ptr<const Script>& script,
                             Solver* solver, const DealRunOptions& options, int first);

}  // namespace tricklet
