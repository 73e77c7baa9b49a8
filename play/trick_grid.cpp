#include "play/trick_grid.h"

#include <algorithm>

#include "play/played_record.h"

namespace tricklet {
namespace {

void AddCard(TrickGrid& grid, Card card, const PlayState& before, const PlayState& after) {
  const bool led = before.cardsInTrick == 0;
  if (led) grid.rows.emplace_back();
  TrickGrid::Row& row = grid.rows.back();
  row[*before.onPlay] = TrickGrid::Cell{.card = card, .number = grid.cards, .led = led};
  for (const Seat seat : kAllSeats) {
    if (row[seat]) row[seat]->wins = seat == after.trickWinner;
  }
  ++grid.cards;
}

/// Of a trick that was claimed before it was complete.
void ForgetWinner(TrickGrid::Row& row) {
  for (auto& cell : row) {
    if (cell) cell->wins = false;
  }
}

/// A finished trick stays the current one for as long as it lies on the table.
void FindCurrent(TrickGrid& grid, const PlayState& now) {
  if (now.tricksPlayed == kTricks && now.trickGathered) return;
  if (now.cardsInTrick == 0 && now.trickGathered) grid.rows.emplace_back();
  grid.current = static_cast<int>(grid.rows.size()) - 1;
  if (now.onPlay && !grid.rows.back()[*now.onPlay]) grid.toPlay = now.onPlay;
}

void Mark(TrickGrid& grid, std::span<const int> given) {
  for (TrickGrid::Row& row : grid.rows) {
    for (auto& cell : row) {
      if (cell && static_cast<std::size_t>(cell->number) < given.size()) {
        cell->given = given[static_cast<std::size_t>(cell->number)];
      }
    }
  }
}

}  // namespace

bool TrickGrid::AnyGiven() const {
  return std::ranges::any_of(rows, [](const Row& row) {
    return std::ranges::any_of(
        row.values, [](const std::optional<Cell>& cell) { return cell && cell->given > 0; });
  });
}

TrickGrid MakeTrickGrid(const CardPlay& play, std::span<const int> given) {
  TrickGrid grid;
  if (!play.PlayMode()) return grid;
  for (int step = 0; step < play.UndoTop(); ++step) {
    const PlayState& before = play.StateAt(step);
    const PlayState& after = play.StateAt(step + 1);
    if (const auto card = CardBetween(before, after)) {
      AddCard(grid, *card, before, after);
    } else {
      grid.claimedBy = after.claimSide;
      grid.claimed = after.claimTricks;
      grid.claimedOf = kTricks - before.tricksPlayed;
      if (before.cardsInTrick > 0) ForgetWinner(grid.rows.back());
    }
  }
  FindCurrent(grid, play.Now());
  Mark(grid, given);
  return grid;
}

TrickGrid MakeRecordGrid(const Replay& replay, std::span<const int> given) {
  TrickGrid grid;
  if (replay.Playable() == 0) return grid;
  const std::vector<Card>& cards = replay.Record().cards;
  const std::span seen = std::span(cards).first(static_cast<std::size_t>(replay.Playable()));
  const LegalPlay play = FollowPlay(replay.Record().board, seen);
  for (int number = 0; number < replay.Playable(); ++number) {
    const auto trick = static_cast<std::size_t>(number / kSeats);
    const Seat seat = SeatAfter(play.leaders.at(trick), number % kSeats);
    if (number % kSeats == 0) grid.rows.emplace_back();
    grid.rows.back()[seat] =
        TrickGrid::Cell{.card = seen[static_cast<std::size_t>(number)],
                        .number = number,
                        .led = number % kSeats == 0,
                        .wins = trick + 1 < play.leaders.size() && play.leaders[trick + 1] == seat};
  }
  grid.cards = replay.Shown();
  grid.current = std::max(0, grid.cards - 1) / kSeats;
  Mark(grid, given);
  return grid;
}

}  // namespace tricklet
