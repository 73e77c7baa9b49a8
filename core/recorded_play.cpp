#include "core/recorded_play.h"

#include "core/trick.h"

namespace tricklet {

std::optional<int> DeclarerTricks(const Board& board, std::span<const Card> cards) {
  if (board.ContractLevel == 0 || cards.size() != std::size_t{kCardsInPack}) return std::nullopt;
  HandTable left = board.Hands;
  Seat onPlay = SeatAfter(board.Declarer);
  Trick trick;
  int tricks = 0;
  for (const Card card : cards) {
    if (!trick.LegalCards(left[onPlay])[card.suit].Has(card.rank)) return std::nullopt;
    left[onPlay][card.suit].Remove(card.rank);
    trick.Add(card, onPlay, board.Trumps);
    onPlay = SeatAfter(onPlay);
    if (trick.CardsInTrick < kSeats) continue;
    onPlay = trick.TrickWinner;
    trick.CardsInTrick = 0;
    if (SideOf(onPlay) == SideOf(board.Declarer)) ++tricks;
  }
  return tricks;
}

}  // namespace tricklet
