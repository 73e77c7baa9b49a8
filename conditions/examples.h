// Conditions to begin with.
#pragma once

#include <span>
#include <string_view>

namespace tricklet {

struct ConditionExample {
  std::string_view name;  ///< what it deals, for a menu
  std::string_view text;  ///< a script without faults
};

std::span<const ConditionExample> ConditionExamples();

}  // namespace tricklet
