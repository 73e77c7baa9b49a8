// A hand as a person types it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/holding.h"

namespace tricklet {

/// Reads a hand of at most 13 cards: spades, hearts, diamonds and clubs with "." between them, as
/// in "AKT2.QJ5.-.98". The ten is "T" or "10"; a void is "-" or nothing; ranks come in any order
/// and letter case. Returns nothing when it was read; else the reason, for the person to read, and
/// `hand` is as it was.
[[nodiscard]] std::optional<std::string> ReadHandText(std::string_view text,
                                                      PerSuit<Holding>& hand);

/// The highest card of a holding that is not empty.
Card HighestCard(Suit suit, Holding holding);

}  // namespace tricklet
