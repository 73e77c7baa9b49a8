// From what a person types to what is asked of each board.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "analysis/solver.h"
#include "finding/find_query.h"

namespace tricklet {

struct QueryOutcome {
  std::optional<FindQuery> query;  ///< nothing when the condition cannot be read
  std::string fault;               ///< what is wrong with it, and where; a line for each fault
};

/// Gives the solver, which may have to be loaded first.
using GetSolver = std::function<Solver&()>;

/// `text` is a condition of the language of deals (`conditions/script.h`) or words, as
/// `ReadsAsCondition` says; `words` are more of them. Each may be empty. Only for a condition that
/// uses `tricks` the solver is asked for; without one, and where something is missing to it, that
/// is a fault. The query keeps what the condition has worked out, so each thread reads its own.
QueryOutcome ReadQuery(std::string_view text, std::string_view words, const GetSolver& getSolver);

}  // namespace tricklet
