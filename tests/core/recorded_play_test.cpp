#include "core/recorded_play.h"

#include <gtest/gtest.h>

#include "tests/support/calls.h"
#include "tests/support/hands.h"

namespace tricklet::test {
namespace {

TEST(DeclarerTricks, CountsThoseOfBothHandsOfALegalPlayToItsEnd) {
  Board board;
  board.boardNumber = 3;  // South deals; dummy has the trumps, ruffs the lead and wins the rest
  board.hands = OneSuitEach();
  SetAuction(board, "1S P P P");
  std::vector<Card> cards;
  for (int card = 0; card < kCardsInPack; ++card) {
    const Seat seat = SeatAfter(card < kSeats ? Seat::West : Seat::North, card % kSeats);
    cards.push_back({static_cast<Suit>(seat), static_cast<Rank>(card / kSeats)});
  }
  EXPECT_EQ(DeclarerTricks(board, cards), 13);
  EXPECT_FALSE(DeclarerTricks(board, std::span(cards).first(51)));
  const LegalPlay play = FollowPlay(board, std::span(cards).first(7));
  EXPECT_EQ(play.cards, 7);
  EXPECT_EQ(play.leaders, (std::vector{Seat::West, Seat::North})) << "North has ruffed";
  // East and West change their twos, so East has a club at the first lead.
  board.hands = HandsOf("N:AKQJT98765432... .AKQJT9876543..2 ..AKQJT98765432. .2..AKQJT9876543");
  std::swap(cards[49], cards[51]);
  EXPECT_FALSE(DeclarerTricks(board, cards)) << "a revoke";
  EXPECT_EQ(FollowPlay(board, cards).cards, 2) << "up to East, who has revoked";
  EXPECT_TRUE(FollowPlay({}, cards).leaders.empty()) << "no contract";
}

}  // namespace
}  // namespace tricklet::test
