// A score that was not made at the table: an adjusted score, or none.
#pragma once

#include <optional>
#include <string_view>

#include "core/notation.h"

namespace tricklet {

/// The text of a score says that the board was not played: "NP", "Not played".
bool IsNotPlayed(std::string_view score);

/// What a ruling gives each side in per cent of the match points available, 0..100: "A6040",
/// "60%/40%", "AV+/AV-", and for both sides "AVE". Average plus is 60, average 50, average minus 40
/// (Laws of Duplicate Bridge, 12C2). A ruling for one side alone is North-South's. Nothing for what
/// is no such ruling.
PerSide<std::optional<float>> PercentagesOf(std::string_view ruling);

}  // namespace tricklet
