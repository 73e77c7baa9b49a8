#include "core/recorded_play.h"

#include "core/trick.h"

namespace tricklet {

std::optional<int> DeclarerTricks(const Board& board, std::span<const Card> cards) {
  if (board.contractLevel == 0 || cards.size() != std::size_t{kCardsInPack}) return std::nullopt;
  HandTable left = board.hands;
  Seat onPlay = SeatAfter(board.declarer);
  Trick trick;
  int tricks = 0;
  for (const Card card : cards) {
    if (!trick.LegalCards(left[onPlay])[card.suit].Has(card.rank)) return std::nullopt;
    left[onPlay][card.suit].Remove(card.rank);
    trick.Add(card, onPlay, board.trumps);
    onPlay = SeatAfter(onPlay);
    if (trick.cardsInTrick < kSeats) continue;
    onPlay = trick.trickWinner;
    trick.cardsInTrick = 0;
    if (SideOf(onPlay) == SideOf(board.declarer)) ++tricks;
  }
  return tricks;
}

}  // namespace tricklet
