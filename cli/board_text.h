// A board as text: diagram, auction, contract, statistics, makeable table.
#pragma once

#include <string>

#include "core/board.h"
#include "core/settings.h"

namespace tricklet::cli {

/// Several lines, UTF-8, each ended by "\n".
std::string BoardText(const Board& board, const std::string& libraryName, const Settings& settings);

/// The four hands as a diagram alone.
std::string HandsText(const Board& board);

/// The auction and its contract; empty when there is none.
std::string AuctionText(const Board& board);

/// The makeable table with par below it; empty when there is none.
std::string TableText(const Board& board, bool contracts);

}  // namespace tricklet::cli
