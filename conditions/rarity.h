// How rare the deals are that meet a condition.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

#include "conditions/script.h"

namespace tricklet {

/// A sample of deals. Those that hold what is predealt count as all deals.
struct Rarity {
  std::int64_t tried = 0;     ///< not negative
  std::int64_t accepted = 0;  ///< at most `tried`
};

/// Deals for `time` at the most, and no longer than until some 400 deals are accepted, by which
/// the rate is known to a tenth; `stop` ends it early. Always with the same random numbers. A
/// script that asks the solver is not tried, as its deals take too long each.
Rarity EstimateRarity(const std::shared_ptr<const Script>& script, std::chrono::milliseconds time,
                      const std::atomic<bool>& stop);

/// "About 1 deal in 380", "Fewer than 1 deal in 120,000", "Every deal"; empty when none was tried.
std::string RarityText(const Rarity& rarity);

}  // namespace tricklet
