// Seats and suits as typed.
#pragma once

#include <optional>
#include <string_view>

#include "core/notation.h"

namespace tricklet::cli {

/// By name or first letter, in any letter case.
std::optional<Seat> SeatFromText(std::string_view text);
std::optional<Suit> SuitFromText(std::string_view text);

}  // namespace tricklet::cli
