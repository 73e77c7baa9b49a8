#include "play/best_cards.h"

namespace tricklet {

std::optional<SolverPosition> PositionOf(const PlayState& state, Strain trumps) {
  if (!state.onPlay) return std::nullopt;
  SolverPosition position;
  position.trumps = trumps;
  position.cardsLeft = state.cardsLeft;
  position.leader =
      static_cast<Seat>((IndexOf(*state.onPlay) - state.cardsInTrick + kSeats) % kSeats);
  Seat seat = position.leader;
  for (int i = 0; i < state.cardsInTrick; ++i, seat = SeatAfter(seat)) {
    if (const auto& card = state.trickCards[seat]) position.trick.push_back(*card);
  }
  return position;
}

std::vector<CardScore> BestCards(Solver& solver, const SolverPosition& position, int tricksWon) {
  std::vector<CardScore> scores = solver.SolveCards(position);
  for (CardScore& score : scores) score.tricks += tricksWon;
  return scores;
}

}  // namespace tricklet
