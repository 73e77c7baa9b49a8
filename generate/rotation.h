// Exchanging and rotating whole hands and suits.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/board.h"

namespace tricklet {

/// The numbers are those by which `swap` knows them.
enum class Rotation : std::uint8_t {
  Clockwise = 4,      ///< North's cards go to East
  AntiClockwise = 5,  ///< North's cards go to West
  HalfTurn = 6,
};

/// What the person is told when `Rotate` cannot take the auction along.
inline constexpr std::string_view kAuctionStays = "The auction cannot be taken along";

/// With `from` a seat's index, exchanges its cards with those of seat `to`; with `from` 4..6
/// rotates all hands (`to` does not matter). Every other number throws `Fault`
/// kSubscriptOutOfRange. Like all edits it leaves the board unsaved and without a makeable table,
/// even when nothing moved.
void swap(Board& board, int from, int to);

/// `swap` for a rotation. With `takeAuction` every player keeps his own calls: as the dealer is
/// bound to the board number, passes are put before the auction or taken from its front until the
/// player who made a call makes it again. False when that would give no legal auction, and then
/// the calls stay as they were; the cards rotate either way.
bool Rotate(Board& board, Rotation rotation, bool takeAuction = false);

/// Exchanges the two suits in every hand, rank for rank.
void SwapSuit(Board& board, Suit suit1, Suit suit2);

}  // namespace tricklet
