// The point that a play has reached, and what can be known of the hands there.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "analysis/solver.h"
#include "conditions/script.h"
#include "core/board.h"

namespace tricklet {

struct PlayPoint {
  Strain trumps = Strain::NoTrump;
  Seat declarer = Seat::South;
  Seat onPlay = Seat::West;
  int played = 0;  ///< cards, 0..51
  /// The cards that have been played, by who played them.
  HandTable cardsPlayed;
  PerSeat<PerSuit<bool>> shownOut;
  PerSuit<Holding> legal;  ///< cards of the hand on play that may be played; at least one
  PerSide<int> tricksWon;  ///< so far

  /// The position in `deal`, which has the cards played in the hands of those who played them.
  SolverPosition PositionIn(const HandTable& deal) const;

  // The current trick.
  Seat leader = Seat::West;
  std::vector<Card> trick;  ///< in order, 0..3
};

/// Follows `cards` from the opening lead on, in the deal and the contract of `board`; hands of
/// which no card is played need not be complete. Nothing, and why in a sentence for the person,
/// when a card is not legal, or when nothing is left to be decided.
std::optional<PlayPoint> FollowTo(const Board& board, std::span<const Card> cards,
                                  std::string& why);

/// What is known of the deal of `hands` to somebody who sees the hands `seen`: these, and every
/// card played by the others, with the lengths of the suits in which they have shown out.
Predealt KnownAt(const PlayPoint& point, const HandTable& hands, const PerSeat<bool>& seen);

/// What the hand on play sees: itself and dummy, once that is on the table; declarer and dummy for
/// either of them.
PerSeat<bool> SeenOnPlay(const PlayPoint& point);

}  // namespace tricklet
