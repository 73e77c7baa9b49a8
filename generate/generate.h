// The generator's run over a range of boards.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/host.h"
#include "generate/board_run.h"
#include "generate/constraints.h"
#include "library/session.h"

namespace tricklet {

struct GenerateOptions {
  bool analyse = false;  ///< as `BoardRunPlan` has it
  /// Shows each deal to the person before it is stored: Yes stores it, No deals again, anything
  /// else ends the run. May be empty.
  std::function<Answer(const Board&)> preview = {};
};

struct GenerateOutcome : BoardRunOutcome {
  /// The boards stored that do not meet the constraints, by number, the lowest first.
  std::vector<int> outside = {};
};

/// Fills the boards `genBoards` of the current library with deals, as `RunOverBoards` does; tells
/// at the end which of them do not meet the constraints. Each deal is the session's board during
/// the host's step, and is stored after it. `CheckConstraints` must accept the constraints.
GenerateOutcome Generate(Session& session, const Constraints& constraints,
                         const GenerateOptions& options = {});

}  // namespace tricklet
