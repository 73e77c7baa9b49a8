// Deals that meet a script, one after the other: one thread's worth.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "analysis/solver.h"
#include "conditions/deal_plan.h"
#include "conditions/evaluator.h"
#include "conditions/script.h"
#include "conditions/shuffle.h"
#include "core/random_source.h"

namespace tricklet {

/// Deals at random what a script leaves open and keeps what meets its condition: each deal that
/// holds what is predealt and meets the condition is equally likely.
class Dealing {
 public:
  /// `solver` as for `Evaluator`. The same script and random source give the same deals.
  Dealing(const std::shared_ptr<const Script>& script, Solver* solver, RandomSource random);
  Dealing(const Dealing&) = delete;
  Dealing& operator=(const Dealing&) = delete;

  /// Begins anew with another random source, as if this had just been made with it.
  void Restart(RandomSource random);

  /// The next deal that is accepted, after at most `tries` deals; nothing when none of them is.
  /// Raises a `Fault` when the solver fails.
  std::optional<HandTable> Next(std::int64_t tries);

  /// Deals tried up to now, those that were accepted among them.
  std::int64_t Tried() const { return tried_; }

  /// Of the deal that `Next` has given: what another expression of the script is worth.
  int Value(ExpressionId expression) { return evaluator_.Value(expression); }

 private:
  /// Deals and looks at hands one after the other; false as soon as a test fails.
  bool TryDeal();
  bool Passes(std::size_t place);

  DealPlan plan_;
  RandomSource random_;
  Evaluator evaluator_;
  Shuffle unshuffled_;
  Shuffle shuffle_;
  std::int64_t tried_ = 0;
};

}  // namespace tricklet
