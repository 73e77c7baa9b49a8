#include "play/played_record.h"

#include <bit>

namespace tricklet {

std::optional<Card> CardBetween(const PlayState& before, const PlayState& after) {
  if (!before.onPlay) return std::nullopt;
  for (const Suit suit : kAllSuits) {
    const Holding gone =
        before.cardsLeft[*before.onPlay][suit] - after.cardsLeft[*before.onPlay][suit];
    if (!gone.Empty()) return Card{suit, static_cast<Rank>(std::countr_zero(gone.Bits()))};
  }
  return std::nullopt;
}

RecordedPlay RecordOfPlay(const CardPlay& play) {
  RecordedPlay record;
  record.board = play.Played();
  record.board.playMode = false;
  if (!play.PlayMode()) return record;
  for (int step = 0; step < play.UndoTop(); ++step) {
    if (const auto card = CardBetween(play.StateAt(step), play.StateAt(step + 1))) {
      record.cards.push_back(*card);
    }
  }
  if (play.Finished()) record.tricks = play.Now().tricksWon[SideOf(record.board.declarer)];
  return record;
}

}  // namespace tricklet
