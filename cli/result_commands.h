// The commands for the results that a library keeps.
#pragma once

#include "cli/context.h"

namespace tricklet::cli {

/// Shows the traveller of a board; refuses, with the reason, where the library has none of it.
ExitCode TravellerOf(const Context& context, int boardNumber);

}  // namespace tricklet::cli
