// A condition of the deals, as text in the language of conditions.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "analysis/solver.h"
#include "simulation/known_cards.h"

namespace tricklet {

/// What `text` asks of the deals: its predealt cards join `known`, and the answer says of a
/// complete deal whether it has the predealt lengths and meets the condition. Only that counts of a
/// script: its actions, numbers of deals, seed, dealer and vulnerability do not. An empty function,
/// and why in a sentence for the person, when the text has a fault or contradicts `known`. `solver`
/// outlives the function; `seed` is of the numbers of `rnd`.
std::function<bool(const HandTable&)> ReadCondition(std::string_view text, Solver& solver,
                                                    std::uint64_t seed, KnownCards& known,
                                                    std::string& why);

}  // namespace tricklet
