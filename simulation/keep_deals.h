// The deals of a simulation as a library.
#pragma once

#include <string_view>
#include <vector>

#include "library/session.h"

namespace tricklet {

/// Stores `deals`, the first 999 of them, as boards 1 and up of a new library `name`. The current
/// library and board stay as they are. True when all of these are stored; else, and when the name
/// cannot be given to a new library, the person has been told why. Tells how many it kept.
bool KeepDeals(Session& session, const std::vector<HandTable>& deals, std::string_view name);

}  // namespace tricklet
