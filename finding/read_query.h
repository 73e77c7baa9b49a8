// From what a person types to what is asked of each board.
#pragma once

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

/// A condition of the language of deals (`conditions/script.h`), which may be empty, and words. Of
/// a condition that uses `tricks`, `solver` answers it; without one that is a fault. The query
/// keeps what the condition has worked out, so each thread reads its own.
QueryOutcome ReadQuery(std::string_view condition, std::string_view words, Solver* solver);

/// Either, as `ReadsAsCondition` says.
QueryOutcome ReadQuery(std::string_view text, Solver* solver);

}  // namespace tricklet
