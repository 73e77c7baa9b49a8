// The generator's run over a range of boards.
#pragma once

#include <functional>

#include "core/host.h"
#include "generate/constraints.h"
#include "library/session.h"

namespace tricklet {

/// What is done with each deal before it is stored. Both may be empty.
struct GenerateOptions {
  std::function<void(Board&)> analyse;  ///< fills the makeable table
  /// Shows the deal to the person: Yes stores it, No deals again, anything else ends the run.
  std::function<Answer(const Board&)> preview;
};

struct GenerateOutcome {
  int boardsStored = 0;
  bool refused = false;    ///< by the person, before anything was written
  bool cancelled = false;  ///< in mid-run: the boards up to then are stored
  bool failed = false;     ///< a board could not be stored
};

/// Fills the boards `GenBoards` of the current library with deals, and then loads the first of
/// them. Asks before about unsaved changes, and once about overwriting. The constraints must be
/// such that `CheckConstraints` accepts them.
GenerateOutcome Generate(Session& session, const Constraints& constraints,
                         const GenerateOptions& options = {});

}  // namespace tricklet
