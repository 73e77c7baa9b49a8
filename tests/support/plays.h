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

/// The first `count` cards of a legal play of `board`, at random.
inline std::vector<Card> RandomCards(const Board& board, int count, RandomSource& random) {
  HandTable left = board.hands;
  Seat onPlay = SeatAfter(board.declarer);
  Trick trick;
  std::vector<Card> cards;
  while (static_cast<int>(cards.size()) < count) {
    std::vector<Card> legal;
    const PerSuit<Holding> holdings = trick.LegalCards(left[onPlay]);
    for (int index = 0; index < kCardsInPack; ++index) {
      const Card card = Card::FromIndex(index);
      if (holdings[card.suit].Has(card.rank)) legal.push_back(card);
    }
    cards.push_back(legal[random.Below(static_cast<std::uint32_t>(legal.size()))]);
    left[onPlay][cards.back().suit].Remove(cards.back().rank);
    trick.Add(cards.back(), onPlay, board.trumps);
    onPlay = trick.cardsInTrick == kSeats ? trick.trickWinner : SeatAfter(onPlay);
    if (trick.cardsInTrick == kSeats) trick.cardsInTrick = 0;
  }
  return cards;
}

}  // namespace tricklet::test
