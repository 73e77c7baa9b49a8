// Seats and suits as typed.
#pragma once

#include <optional>
#include <string_view>

#include "core/holding.h"
#include "core/notation.h"

namespace tricklet::cli {

/// By name or first letter, in any letter case.
std::optional<Seat> SeatFromText(std::string_view text);
std::optional<Suit> SuitFromText(std::string_view text);

/// Suit letter and rank, in any letter case: "SA", "h10", "HT".
std::optional<Card> CardFromText(std::string_view text);

/// "none", "ns", "ew" or "all", in any letter case.
std::optional<Vulnerability> VulnerabilityFromText(std::string_view text);

}  // namespace tricklet::cli
