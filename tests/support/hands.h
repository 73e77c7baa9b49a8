// Hands from text.
#pragma once

#include <string>
#include <string_view>

#include "core/board.h"

namespace tricklet::test {

/// The card that "SA" or "CT" names.
inline Card CardOf(std::string_view text) {
  return {static_cast<Suit>(std::string_view("SHDC").find(text[0])),
          static_cast<Rank>(std::string_view("AKQJT98765432").find(text[1]))};
}

/// The hands of a PBN deal, "N:AQ5.K86.. - - -": the seat of the first hand, then the hands
/// clockwise. The ten may also be written "10".
inline HandTable HandsOf(std::string_view deal) {
  HandTable hands;
  std::string tens;
  for (const char c : deal.substr(2)) tens += c == 'T' ? std::string("10") : std::string(1, c);
  std::string_view rest = tens;
  const auto first = static_cast<Seat>(std::string_view("NESW").find(deal.front()));
  for (int step = 0; step < kSeats; ++step) GetHand(rest, hands, SeatAfter(first, step));
  return hands;
}

/// North holds all spades, East all hearts, South all diamonds, West all clubs.
inline HandTable OneSuitEach() {
  return HandsOf("N:AKQJT98765432... .AKQJT98765432.. ..AKQJT98765432. ...AKQJT98765432");
}

}  // namespace tricklet::test
