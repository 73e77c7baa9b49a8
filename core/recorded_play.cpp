#include "core/recorded_play.h"

#include <algorithm>

#include "core/trick.h"

namespace tricklet {

LegalPlay FollowPlay(const Board& board, std::span<const Card> cards) {
  LegalPlay play;
  if (board.contractLevel == 0) return play;
  HandTable left = board.hands;
  Seat onPlay = SeatAfter(board.declarer);
  Trick trick;
  play.leaders.push_back(onPlay);
  for (const Card card : cards) {
    if (!trick.LegalCards(left[onPlay])[card.suit].Has(card.rank)) break;
    left[onPlay][card.suit].Remove(card.rank);
    trick.Add(card, onPlay, board.trumps);
    ++play.cards;
    onPlay = SeatAfter(onPlay);
    if (trick.cardsInTrick < kSeats) continue;
    onPlay = trick.trickWinner;
    trick.cardsInTrick = 0;
    play.leaders.push_back(onPlay);
  }
  return play;
}

std::optional<int> DeclarerTricks(const Board& board, std::span<const Card> cards) {
  if (board.contractLevel == 0 || cards.size() != std::size_t{kCardsInPack}) return std::nullopt;
  const LegalPlay play = FollowPlay(board, cards);
  if (play.cards != kCardsInPack) return std::nullopt;
  const auto declares = [&](Seat winner) { return SideOf(winner) == SideOf(board.declarer); };
  return static_cast<int>(std::count_if(play.leaders.begin() + 1, play.leaders.end(), declares));
}

}  // namespace tricklet
