// What the deals of a simulation have in common: known cards and lengths, and a condition.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "conditions/script.h"

namespace tricklet {

/// A script whose deals hold what is `known` and meet `condition`, a text in the language of
/// conditions that may be empty. What the text predeals joins what is known; of the rest of a
/// script only its condition counts, not its actions, numbers of deals, seed, dealer and
/// vulnerability. Null, and why in a sentence for the person, when the text has a fault, when it
/// contradicts what is known, or when no deal agrees with both.
std::shared_ptr<const Script> ScriptOfDeals(const Predealt& known, std::string_view condition,
                                            std::string& why);

}  // namespace tricklet
