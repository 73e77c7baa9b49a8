// A deal as conditions look at it.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

#include "core/board.h"

namespace tricklet {

/// The holdings of a hand as bits (`Holding::Bits`), in the order of `Suit`.
using HandBits = std::array<std::uint16_t, kSuits>;

/// The hands in the order of `Seat`.
using DealBits = std::array<HandBits, kSeats>;

inline DealBits BitsOf(const HandTable& hands) {
  DealBits deal{};
  for (const Seat seat : kAllSeats) {
    for (const Suit suit : kAllSuits) {
      deal.at(static_cast<std::size_t>(seat)).at(static_cast<std::size_t>(suit)) =
          static_cast<std::uint16_t>(hands[seat][suit].Bits());
    }
  }
  return deal;
}

inline HandTable HandsOf(const DealBits& deal) {
  HandTable hands;
  for (const Seat seat : kAllSeats) {
    for (const Suit suit : kAllSuits) {
      hands[seat][suit] = Holding::FromBits(
          deal.at(static_cast<std::size_t>(seat)).at(static_cast<std::size_t>(suit)));
    }
  }
  return hands;
}

}  // namespace tricklet
