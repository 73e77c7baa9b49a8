// The tricks of a play as a table: a row for each trick, a column for each seat.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "play/card_play.h"
#include "play/replay.h"

namespace tricklet {

struct TrickGrid {
  struct Cell {
    Card card;
    int number = 0;     ///< its place in the play, from 0 for the opening lead
    bool led = false;   ///< the first card of its trick
    bool wins = false;  ///< the trick, or what there is of it so far
    int given = 0;      ///< tricks that it gave away double-dummy, 0..13; 0 too where not known
    friend bool operator==(const Cell&, const Cell&) = default;
  };
  /// A seat without a card has not played to the trick.
  using Row = PerSeat<std::optional<Cell>>;

  std::vector<Row> rows;  ///< 0..13: of the tricks begun, and of the one to be led to
  int current = -1;       ///< the row of the trick on the table or to be led to; -1 after the play
  std::optional<Seat> toPlay;     ///< the next to play to the current trick; nobody when it is full
  int cards = 0;                  ///< played so far, 0..52
  std::optional<Side> claimedBy;  ///< the side that has claimed tricks without a card
  int claimed = 0;                ///< how many of them it has, 0..13; the other side has the rest
  int claimedOf = 0;              ///< how many there were, 1..13

  /// Some card gave a trick away.
  bool AnyGiven() const;
};

/// The grid of `play`; without rows where its `PlayMode` is off. `given` has the tricks, 0..13,
/// that each card gave away, from the opening lead on as far as they are known.
TrickGrid MakeTrickGrid(const CardPlay& play, std::span<const int> given);

/// All cards of a record that can be seen, those after the place that was stepped to among them.
/// The current row is that of the card that was stepped to, or the first. Nobody is to play.
TrickGrid MakeRecordGrid(const Replay& replay, std::span<const int> given);

}  // namespace tricklet
