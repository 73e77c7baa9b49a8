// A run of deals that meet a script, on all cores.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "analysis/solver.h"
#include "conditions/script.h"
#include "core/host.h"

namespace tricklet {

/// A deal that meets the script, and what its `expressions` are worth for it.
struct FoundDeal {
  HandTable hands;
  std::vector<std::int32_t> values;
};

struct DealRunOptions {
  std::int64_t produce = 0;   ///< deals wanted
  std::int64_t generate = 0;  ///< deals tried at the most
  std::uint64_t seed = 0;     ///< the same one gives the same deals, however many cores there are
  unsigned cores = 0;         ///< 0: all there are
  std::vector<ExpressionId> expressions =
      {};  ///< of the script, to be evaluated for each deal found
};

struct DealRunOutcome {
  std::int64_t tried = 0;  ///< up to the last deal found, or all
  std::int64_t produced = 0;
  bool cancelled = false;  ///< by the person; what had been found stands
  bool stopped = false;    ///< by `found`
  double seconds = 0;
};

/// Deals until enough deals are found or tried, and gives each to `found` in their order, on this
/// thread; false from `found` ends the run. Shows steps on `host`. `solver` may be null where the
/// script does not use it. Raises the `Fault` of a solver that fails.
DealRunOutcome RunDeals(const std::shared_ptr<const Script>& script, Solver* solver, Host& host,
                        const DealRunOptions& options,
                        const std::function<bool(const FoundDeal&)>& found);

/// "1,234,567 deals tried, 12 found, 8,000,000 a second".
std::string DealCountsText(const DealRunOutcome& now);
/// The same with ", 5 s left".
std::string DealProgressText(const DealRunOutcome& now, const DealRunOptions& options);

}  // namespace tricklet
