// Boards to play at random, and what may be played.
#pragma once

#include <vector>

#include <gtest/gtest.h>

#include "generate/deal.h"
#include "play/card_play.h"

namespace tricklet::test {

/// A deal at random with a contract; trumps and declarer change with `number`.
inline Board RandomBoard(int number, RandomSource& random) {
  Board board;
  EXPECT_TRUE(Random(board.hands, random));
  board.contractLevel = 1;
  board.trumps = static_cast<Strain>(number % 5);
  board.declarer = static_cast<Seat>(number % 4);
  return board;
}

/// The cards that may be played now, in the order of their indices.
inline std::vector<Card> LegalCards(const CardPlay& play) {
  std::vector<Card> cards;
  for (int index = 0; index < kCardsInPack; ++index) {
    if (play.IsLegal(Card::FromIndex(index))) cards.push_back(Card::FromIndex(index));
  }
  return cards;
}

}  // namespace tricklet::test
