// Writing LIN hand records.
#pragma once

#include <string>

#include "core/board.h"

namespace tricklet {

/// The line of one complete deal, CR LF at its end: board number, dealer, the hands of South, West
/// and North, and the vulnerability ("0", "N", "E" or "B"). Dealer and vulnerability follow from
/// the board number; East's hand is what the others leave.
std::string LinRecordLine(const Board& board);

}  // namespace tricklet
