// What the table shows of a play: a copy, so that painting asks nobody.
#pragma once

#include <optional>

#include <QString>

#include "play/card_play.h"

namespace tricklet::ui {

struct PlaySnapshot {
  PlayState now;
  PerSuit<Holding> legal;   ///< of the hand on play
  PerSide<QString> tricks;  ///< "NS: 4", "EW: 2"
  bool finished = false;
  QString score;  ///< the result line once the play is finished

  /// The last trick has been played and gathered, and nothing is left to be done. A claim, which
  /// leaves cards in the hands, does not count.
  bool PlayedOut() const { return finished && now.trickGathered && !now.claimed; }
  /// What the hand on play still holds.
  PerSuit<Holding> HandOnPlay() const;
  bool IsLegal(Card card) const { return legal[card.suit].Has(card.rank); }
  friend bool operator==(const PlaySnapshot&, const PlaySnapshot&) = default;
};

/// Nothing unless a board is being played.
std::optional<PlaySnapshot> SnapshotOf(const CardPlay* play);

}  // namespace tricklet::ui
