// What a form of the generator asks for, in the language of deal conditions.
#pragma once

#include <string>

#include "core/notation.h"
#include "generate/constraints.h"

namespace tricklet {

/// The condition that `MeetsConstraints` holds a deal against on a board with this dealer, a line
/// for each hand. Limits that every hand meets are left out; where nothing is asked, it is "1".
std::string ConditionText(const Constraints& constraints, Seat dealer);

}  // namespace tricklet
