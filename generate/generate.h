// The generator's run over a range of boards.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/host.h"
#include "generate/constraints.h"
#include "library/session.h"
#include "library/tables.h"

namespace tricklet {

struct GenerateOptions {
  /// Computes the makeable tables of the boards, in batches, once all of them are stored. Without a
  /// solver in the session the boards have no tables.
  bool analyse = false;
  /// Shows each deal to the person before it is stored: Yes stores it, No deals again, anything
  /// else ends the run. May be empty.
  std::function<Answer(const Board&)> preview = {};
};

struct GenerateOutcome {
  int boardsStored = 0;
  bool refused = false;    ///< by the person, before anything was written
  bool cancelled = false;  ///< in mid-run: the boards up to then are stored
  bool failed = false;     ///< a board could not be stored, or one that it replaced could not be
                           ///< recycled; the person has been told why
  /// The boards stored that do not meet the constraints, by number, the lowest first.
  std::vector<int> outside = {};
  /// What to tell of replaced boards that the recycle bin did not take; empty when it took them.
  std::string notRecycled = {};
  /// Of the analysis, where that was asked for and the run came to its end.
  AnalysisOutcome tables = {};
};

/// What the person is told at the end of a run: which boards do not meet the constraints, and what
/// became of the tables when their computation was cancelled or failed, and where replaced boards
/// are that the recycle bin did not take. Empty when all went well.
std::string GenerateText(const GenerateOutcome& outcome);

/// Fills the boards `genBoards` of the current library with deals, and then loads the first of
/// them. Asks first about unsaved changes, and once about overwriting; tells `GenerateText` at the
/// end. Each deal is the session's board during the host's step, and is stored after it. A board
/// that cannot be stored ends the run; those before it stay. `CheckConstraints` must accept the
/// constraints.
GenerateOutcome Generate(Session& session, const Constraints& constraints,
                         const GenerateOptions& options = {});

}  // namespace tricklet
