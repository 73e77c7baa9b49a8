// A board as text: diagram, auction, contract, statistics, makeable table.
#pragma once

#include <string>

#include "core/board.h"
#include "core/settings.h"

namespace tricklet::cli {

/// Several lines, UTF-8, each ended by "\n".
std::string BoardText(const Board& board, const std::string& libraryName, const Settings& settings);

}  // namespace tricklet::cli
