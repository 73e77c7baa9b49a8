// The address of the online double-dummy page for a board.
#pragma once

#include <string>
#include <string_view>

#include "core/board.h"

namespace tricklet {

/// The address on `host` ("example.org" or "https://example.org"), percent-encoded. `linRecord` is
/// the board's LIN play record, empty when it has none.
std::string SolverAddress(const Board& board, std::string_view libraryName, std::string_view host,
                          std::string_view linRecord = {});

/// "Error - hand 7 - East has 12 cards.", a line for each seat that does not hold 13 cards; empty
/// when all do.
std::string SolverAddressError(const Board& board);

}  // namespace tricklet
