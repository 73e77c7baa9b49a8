#include "formats/results/lin_boards.h"

#include <gtest/gtest.h>

#include "core/fault.h"

namespace tricklet {
namespace {

/// A record in which South has `south` in spades; the board's own dealer deals.
std::string Record(int board, const std::string& south, const std::string& calls = "") {
  const std::string dealer = std::to_string((board + 1) % 4 + 1);
  return "qx|o1|md|" + dealer + "S" + south + ",HA,DA,CA|rh||ah|Board " + std::to_string(board) +
         "|" + calls + "pg||qent|9|qens|140||qenns|1|";
}

LeftOut leftOut;
std::vector<Board> BoardsOf(const LinFile& data, int first, int last) {
  leftOut = {};
  return BoardsOfLinData(data, first, last, leftOut);
}

TEST(LinCards, ABoardHasTheDealOfItsFirstRecordThatGivesOne) {
  LinFile data;
  data.lin = {"rh||ah|Board 1|qent|", Record(12, "2"),  Record(1, "A"),
              Record(1, "K"),         Record(120, "3"), "qx|o2|md|4SQ,HA,DA,CA|pg||"};
  const auto boards = BoardsOf(data, 1, 12);
  ASSERT_EQ(boards.size(), 3U);
  EXPECT_EQ(boards[0].boardNumber, 1);
  EXPECT_TRUE(boards[0].hands[Seat::South][Suit::Spades].Has(Rank::Ace));
  EXPECT_EQ(boards[1].boardNumber, 2) << "named by its room alone";
  EXPECT_EQ(boards[2].boardNumber, 12);
  EXPECT_TRUE(boards[2].hands[Seat::South][Suit::Spades].Has(Rank::Two));
  EXPECT_TRUE(BoardsOf(data, 2, 11).at(0).boardNumber == 2);
  EXPECT_TRUE(BoardsOf({}, 1, 999).empty());
}

TEST(LinCards, ARecordIsOfTheBoardOfItsHeader) {
  const struct {
    const char* record;
    int board;
  } kCases[] = {{"pn|a,Board 4,c,d|qx|o5|rh||ah|Board 7|", 7},
                {"qx|o5|nt|see Board 4|ah|Board 12 x|ah|Board 3|", 12},
                {"nt|see Board 4|qx|o5|", 5},
                {"Board 4|", 0},
                {"", 0}};
  for (const auto& c : kCases) EXPECT_EQ(BoardNumberOfLin(c.record), c.board) << c.record;
}

TEST(LinCards, TheFirstBoardDecidesAboutAuctions) {
  const std::string calls = "mb|1N!|mb|p|mb|p|mb|d|mb|r|mb|p|mb|p|mb|p|";
  LinFile data;
  data.lin = {Record(2, "2", calls), Record(1, "A", calls)};
  EXPECT_EQ(BoardsOf(data, 1, 2).at(0).contract, "1NTxx");
  EXPECT_EQ(BoardsOf(data, 1, 2).at(1).NumCalls(), 8);
  data.lin[1] = Record(1, "A");
  EXPECT_EQ(BoardsOf(data, 1, 2).at(1).NumCalls(), 0);
  EXPECT_EQ(BoardsOf(data, 2, 2).at(0).NumCalls(), 8);
}

TEST(LinCards, AnAuctionOfAnotherDealerIsLeftOut) {
  LinFile data;
  data.lin = {"md|4SA,HA,DA,CA|ah|Board 1|mb|1S|mb|p|mb|p|mb|p|"};
  const Board board = BoardsOf(data, 1, 1).at(0);
  EXPECT_EQ(board.NumCalls(), 0) << "it is East who deals in the record";
  EXPECT_TRUE(HasCards(board.hands));
}

TEST(LinCards, ADealThatCannotBeRightGivesWayToAnotherTables) {
  const std::string twice = "qx|o1|md|3SA,SA,DA,CA|rh||ah|Board 1|pg||";
  const std::string fourteen = "qx|o1|md|3SAKQJT98765432HA,HK,DA,CA|rh||ah|Board 1|pg||";
  LinFile data;
  data.lin = {twice, fourteen, Record(1, "K"), Record(1, "Q"), twice};
  EXPECT_TRUE(BoardsOf(data, 1, 1).at(0).hands[Seat::South][Suit::Spades].Has(Rank::King));
  const std::string whole = "AKQJT98765432";
  data.lin.push_back("md|3S" + whole + ",H" + whole + ",D" + whole + ",|ah|Board 1|");
  data.lin.push_back("md|3H" + whole + ",S" + whole + ",D" + whole + ",|ah|Board 1|");
  EXPECT_EQ(BoardsOf(data, 1, 1).at(0).hands[Seat::South][Suit::Spades].Count(), 13)
      << "the first complete one";
  for (const std::string& wrong : {twice, fourteen}) {
    data.lin = {wrong};
    EXPECT_TRUE(BoardsOf(data, 1, 1).empty());
    EXPECT_EQ(leftOut.impossible, std::vector<int>{1});
  }
}

}  // namespace
}  // namespace tricklet
