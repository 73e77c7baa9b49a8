// Writing LIN hand records.
#pragma once

#include <string>
#include <string_view>

#include "core/board.h"

namespace tricklet {

/// A hand in a deal: each suit's letter and its ranks from the ace down, the ten as "T".
std::string LinHand(const PerSuit<Holding>& hand);

/// The digit before the hands of a deal: '1' South, '2' West, '3' North, '4' East.
char LinDealer(Seat dealer);

/// The value of "sv": "0", "N", "E" or "B".
std::string_view LinVulnerability(Vulnerability vulnerability);

/// The line of one complete deal, CR LF at its end: board number, dealer, the hands of South, West
/// and North, and the vulnerability ("0", "N", "E" or "B"). Dealer and vulnerability follow from
/// the board number; East's hand is what the others leave.
std::string LinRecordLine(const Board& board);

}  // namespace tricklet
