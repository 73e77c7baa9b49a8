// How deals are tried against a condition with as little work as possible.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "conditions/script.h"

namespace tricklet {

/// The order in which hands are dealt, and what is looked at after each. A deal is given up as
/// soon as a test fails. What is given up could not have met the condition, whatever the hands to
/// come, and the next deal begins anew: so the deals that are left are those that meet the
/// condition, each as likely as before.
struct DealPlan {
  std::shared_ptr<const Script> script;  ///< with the tests behind its own expressions
  std::array<Seat, kSeats> seats{};
  /// Tests after each of the hands, in this order: all must hold. Those of a place look only at
  /// hands that are dealt by then. All of them together are the condition.
  std::array<std::vector<ExpressionId>, kSeats> tests{};
};

/// The plan for a script, always the same one. Conditions with random numbers in them are left as
/// they are, and looked at when all hands are dealt.
DealPlan PlanDeals(const std::shared_ptr<const Script>& script);

}  // namespace tricklet
