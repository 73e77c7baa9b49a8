// Exchanging and rotating whole hands and suits.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/board.h"

namespace tricklet {

enum class Rotation : std::uint8_t {
  Clockwise,      ///< North's cards go to East
  AntiClockwise,  ///< North's cards go to West
  HalfTurn,       ///< North's cards go to South
};
/// In the order in which they are offered.
inline constexpr std::array kAllRotations{Rotation::Clockwise, Rotation::AntiClockwise,
                                          Rotation::HalfTurn};

/// What the person is told when `Rotate` cannot take the auction along.
inline constexpr std::string_view kAuctionStays = "The auction cannot be taken along";

/// Exchanges the hands of two seats. The board then counts as edited, even when both are the same.
void swap(Board& board, Seat from, Seat to);

/// Moves all hands round the table. With `takeAuction` every player keeps his own calls: as the
/// dealer is bound to the board number, passes are put before the auction or taken from its front
/// until the player who made a call makes it again. False when that would give no legal auction,
/// and then the calls stay as they were; the cards rotate either way.
bool Rotate(Board& board, Rotation rotation, bool takeAuction = false);

/// Exchanges the two suits in every hand, rank for rank. The board then counts as edited, even when
/// both are the same.
void SwapSuit(Board& board, Suit suit1, Suit suit2);

}  // namespace tricklet
