// A trick: which cards may be played to it, and who wins it.
#pragma once

#include <optional>

#include "core/holding.h"
#include "core/notation.h"

namespace tricklet {

/// The trick in play, by what decides it.
struct Trick {
  int cardsInTrick = 0;            ///< 0..4
  Suit ledSuit = Suit::Spades;     ///< of the current trick's first card
  std::optional<Rank> bestRank;    ///< best so far in the suit led
  std::optional<Rank> bestTrump;   ///< best trump so far on a plain-suit lead
  Seat trickWinner = Seat::North;  ///< who is winning the trick

  /// What `hand` may play now: cards of the suit led where it has any, else all it holds.
  PerSuit<Holding> LegalCards(const PerSuit<Holding>& hand) const;
  /// `seat` plays `card`; the first card of a trick begins it anew.
  void Add(Card card, Seat seat, Strain trumps);

  friend bool operator==(const Trick&, const Trick&) = default;
};

/// The one card of `cards`; nothing when there are more, or none.
std::optional<Card> OnlyCardOf(const PerSuit<Holding>& cards);

}  // namespace tricklet
