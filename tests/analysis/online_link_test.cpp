#include "analysis/online_link.h"

#include <gtest/gtest.h>

#include "tests/support/hands.h"

namespace tricklet {
namespace {

Board OneSuitEach(int number) {
  Board board;
  board.boardNumber = number;
  board.hands = test::OneSuitEach();
  return board;
}

TEST(OnlineLink, CarriesTheBoardInItsQuery) {
  EXPECT_EQ(SolverAddress(OneSuitEach(6), "Caf\u00e9 & co", "example.org"),
            "https://example.org/bsol2/ddummy.htm?board=6&dealer=E&vul=EW"
            "&North=AKQJT98765432...&East=.AKQJT98765432..&South=..AKQJT98765432."
            "&West=...AKQJT98765432&title=Library%3A%20Caf%C3%A9%20%26%20co"
            "&analyse=true&club=velm&event=01");
  EXPECT_TRUE(
      SolverAddress(OneSuitEach(1), "", "http://localhost:8080/")
          .starts_with("http://localhost:8080/bsol2/ddummy.htm?board=1&dealer=N&vul=None&"));
  EXPECT_EQ(SolverAddress(OneSuitEach(1), "", "example.org", "qx|o1|md|3S2"),
            "https://example.org/bsol2/ddummy.htm?lin=qx%7Co1%7Cmd%7C3S2");
}

TEST(OnlineLink, NamesEveryHandWithoutThirteenCards) {
  Board board = OneSuitEach(7);
  board.hands[Seat::East][Suit::Hearts].Remove(Rank::Two);
  AddCard(board.hands, {Suit::Hearts, Rank::Two}, Seat::West);
  EXPECT_EQ(SolverAddressError(board),
            "Error - hand 7 - East has 12 cards.\nError - hand 7 - West has 14 cards.");
}

}  // namespace
}  // namespace tricklet
