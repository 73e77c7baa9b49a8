// An auction in columns.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/board.h"

namespace tricklet {

/// The calls of West, North, East and South, with suit symbols; empty before the dealer's and after
/// the last.
using CallRow = std::array<std::string, kSeats>;
inline constexpr std::array kCallSeats{Seat::West, Seat::North, Seat::East, Seat::South};

/// None where nobody calls.
std::vector<CallRow> CallRows(const Board& board);

/// The rows below the names of the seats, as lines of text; empty where there are none.
std::string CallRowsText(const std::vector<CallRow>& rows);

}  // namespace tricklet
