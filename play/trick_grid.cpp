#include "play/trick_grid.h"

#include <algorithm>

#include "play/played_record.h"

namespace tricklet {
namespace {

int GivenBy(Card card, const std::vector<CardScore>& scores) {
  std::optional<int> own;
  int best = 0;
  for (const CardScore& score : scores) {
    best = std::max(best, score.tricks);
    if (score.card == card) own = score.tricks;
  }
  return own ? best - *own : 0;
}

void AddCard(TrickGrid& grid, Card card, const PlayState& before, const PlayState& after,
             const KnownScores& known) {
  const bool led = before.cardsInTrick == 0;
  if (led) grid.rows.emplace_back();
  TrickGrid::Row& row = grid.rows.back();
  row[*before.onPlay] = TrickGrid::Cell{card, led, false, GivenBy(card, known(before))};
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

}  // namespace

bool TrickGrid::AnyGiven() const {
  return std::ranges::any_of(rows, [](const Row& row) {
    return std::ranges::any_of(
        row.values, [](const std::optional<Cell>& cell) { return cell && cell->given > 0; });
  });
}

TrickGrid MakeTrickGrid(const CardPlay& play, const KnownScores& known) {
  TrickGrid grid;
  if (!play.PlayMode()) return grid;
  for (int step = 0; step < play.UndoTop(); ++step) {
    const PlayState& before = play.StateAt(step);
    const PlayState& after = play.StateAt(step + 1);
    if (const auto card = CardBetween(before, after)) {
      AddCard(grid, *card, before, after, known);
    } else {
      grid.claimedBy = after.claimSide;
      grid.claimed = after.claimTricks;
      grid.claimedOf = kTricks - before.tricksPlayed;
      if (before.cardsInTrick > 0) ForgetWinner(grid.rows.back());
    }
  }
  FindCurrent(grid, play.Now());
  return grid;
}

}  // namespace tricklet
