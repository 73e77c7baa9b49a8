// Hand statistics and the captions made of them.
#pragma once

#include <string>

#include "core/board.h"
#include "core/notation.h"
#include "core/settings.h"

namespace tricklet {

/// What `GetStats` finds in a deal.
struct Statistics {
  PerSeat<PerSuit<int>> suitLength;
  PerSeat<PerSuit<int>> suitHcp;  ///< ace 4, king 3, queen 2, jack 1
  PerSeat<int> seatCardCount;
  PerSeat<int> seatHcp;
  PerSeat<int> seatLtc;  ///< losing-trick count
  PerSide<int> pairLtc;
  PerSuit<Holding> missingCards;      ///< ranks of the suit that no seat holds
  Seat incompleteSeat = Seat::North;  ///< the last seat without 13 cards, when there is one
  bool allHandsComplete = false;      ///< all four seats hold 13 cards

  /// Some seat holds `card`.
  bool CardDealt(Card card) const { return !missingCards[card.suit].Has(card.rank); }
};

Statistics GetStats(const HandTable& hands);

/// Losers of one suit: of the ace, king and queen, but of no more of them than the suit has cards,
/// each one that is missing. A holding headed by ace, jack, ten without king and queen counts
/// exactly one.
int SuitLosers(Holding holding);

/// The caption of each hand from the four caption switches of `settings`, for example
/// "North: 13 cards : HCP=12 LTC=6".
PerSeat<std::string> GetCaptionsEdit(const Statistics& statistics, const Settings& settings);

}  // namespace tricklet
