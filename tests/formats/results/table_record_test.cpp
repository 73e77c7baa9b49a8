#include "formats/results/table_record.h"

#include <gtest/gtest.h>

#include "formats/results/traveller.h"

namespace tricklet::test {
namespace {

Board SuitEach() {
  Board board;
  for (const Seat seat : kAllSeats) {
    board.hands[seat][static_cast<Suit>(IndexOf(seat))] = Holding::FromBits(Holding::kAllBits);
  }
  return board;
}

TEST(TableRecordTest, ATravellerShowsWhatTheTableDid) {
  TableRecord table;
  table.boardNumber = 2;
  table.closedRoom = true;
  table.players = {{"Ann|a", "Bob, jr", "Cy", ""}};
  table.hands = SuitEach().hands;
  table.dealer = Seat::East;
  table.auction = {{Call::Pass(), ""},
                   {Call::Bid(1, BidStrain::NoTrump), "15-17\nbalanced"},
                   {Call::Double(), ""},
                   {Call::Redouble(), ""}};
  table.play = {{Suit::Clubs, Rank::Ten}};
  table.tricks = "7";
  table.contract = "1NTxx";
  table.declarer = "S";
  table.score = "560";
  table.nsMatchPoints = "3.5";
  LinFile file;
  file.boardScoringMethod = "MATCH_POINTS";
  file.lin = {LinLineOf(table)};
  const Traveller traveller = MakeTraveller(file, 2);
  ASSERT_EQ(traveller.rows.size(), 1U);
  const TravellerRow& row = traveller.rows.front();
  EXPECT_EQ(ReadLinBidding(row), "1NTxx by South = +560 Ann a & Cy v Bob  jr");
  EXPECT_EQ(row.record.board.hands, SuitEach().hands);
  EXPECT_EQ(row.record.board.NumCalls(), 4);
  EXPECT_EQ(row.record.cards, table.play);
  EXPECT_EQ(row.points[Side::NorthSouth], 3.5F);
  EXPECT_NE(file.lin.front().find("mb|1N|an|15-17 balanced|mb|d|mb|r|pc|CT|"), std::string::npos);
}

TEST(TableRecordTest, ALineTakesAnotherNumber) {
  EXPECT_EQ(RenumberedLin("qx|c7|pn|a,b,c,d|ah|Board 7|md|3|", 41),
            "qx|c41|pn|a,b,c,d|ah|Board 41|md|3|");
  EXPECT_EQ(RenumberedLin("qx|o7|pn|Board 9,b,c,d|ah|Board 7|", 41),
            "rh||ah|Board 41|qx|o41|pn|Board 9,b,c,d|ah|Board 41|");
  EXPECT_EQ(RenumberedLin("md|3|qent||", 5), "rh||ah|Board 5|md|3|qent||");
}

}  // namespace
}  // namespace tricklet::test
