#include "formats/results/lin_boards.h"

#include <utility>

#include <gtest/gtest.h>

namespace tricklet {
namespace {

/// A record in which South has `south` in spades; the board's own dealer deals.
std::string Record(int board, const std::string& south, const std::string& calls = "") {
  const std::string dealer = std::to_string((board + 1) % 4 + 1);
  return "qx|o1|md|" + dealer + "S" + south + ",HA,DA,CA|rh||ah|Board " + std::to_string(board) +
         "|" + calls + "pg||qent|9|qens|140||qenns|1|";
}

LeftOut leftOut;

std::vector<Board> BoardsOf(std::vector<std::string> records, int first = 1, int last = 12) {
  LinFile data;
  data.lin = std::move(records);
  leftOut = {};
  return BoardsOfLinData(data, first, last, leftOut);
}

bool SouthHas(const Board& board, Rank rank) {
  return board.hands[Seat::South][Suit::Spades].Has(rank);
}

TEST(LinCards, ABoardHasTheDealOfItsFirstRecordThatGivesOne) {
  const std::vector<std::string> records{"rh||ah|Board 1|qent|", Record(12, "2"),
                                         Record(1, "A"),         Record(1, "K"),
                                         Record(120, "3"),       "qx|o2|md|4SQ,HA,DA,CA|pg||"};
  const auto boards = BoardsOf(records);
  ASSERT_EQ(boards.size(), 3U);
  EXPECT_EQ(boards[0].boardNumber, 1);
  EXPECT_TRUE(SouthHas(boards[0], Rank::Ace));
  EXPECT_EQ(boards[1].boardNumber, 2) << "named by its room alone";
  EXPECT_EQ(boards[2].boardNumber, 12);
  EXPECT_TRUE(SouthHas(boards[2], Rank::Two));
  EXPECT_EQ(BoardsOf(records, 2, 11).size(), 1U);
  EXPECT_TRUE(BoardsOf({}, 1, 999).empty());
}

TEST(LinCards, ARecordIsOfTheBoardOfItsHeader) {
  const std::pair<const char*, int> kCases[] = {
      {"pn|a,Board 4,c,d|qx|o5|rh||ah|Board 7|", 7},
      {"qx|o5|nt|see Board 4|ah|Board 12 x|ah|Board 3|", 12},
      {"nt|see Board 4|qx|o5|", 5},
      {"Board 4|", 0},
      {"", 0}};
  for (const auto& [record, board] : kCases) EXPECT_EQ(BoardNumberOfLin(record), board) << record;
}

TEST(LinCards, TheFirstBoardDecidesAboutAuctions) {
  const std::string calls = "mb|1N!|mb|p|mb|p|mb|d|mb|r|mb|p|mb|p|mb|p|";
  const auto both = BoardsOf({Record(2, "2", calls), Record(1, "A", calls)});
  EXPECT_EQ(both.at(0).contract, "1NTxx");
  EXPECT_EQ(both.at(1).NumCalls(), 8);
  const std::vector<std::string> second{Record(2, "2", calls), Record(1, "A")};
  EXPECT_EQ(BoardsOf(second).at(1).NumCalls(), 0);
  EXPECT_EQ(BoardsOf(second, 2, 2).at(0).NumCalls(), 8);
  const Board foreign = BoardsOf({"md|4SA,HA,DA,CA|ah|Board 1|mb|1S|mb|p|mb|p|mb|p|"}).at(0);
  EXPECT_EQ(foreign.NumCalls(), 0) << "it is East who deals in the record";
  EXPECT_EQ(leftOut.foreign, std::vector<int>{1});
  EXPECT_TRUE(HasCards(foreign.hands));
}

TEST(LinCards, ADealThatCannotBeRightGivesWayToAnotherTables) {
  const std::string twice = "qx|o1|md|3SA,SA,DA,CA|rh||ah|Board 1|pg||";
  const std::string fourteen = "qx|o1|md|3SAKQJT98765432HA,HK,DA,CA|rh||ah|Board 1|pg||";
  std::vector<std::string> records{twice, fourteen, Record(1, "K"), Record(1, "Q"), twice};
  EXPECT_TRUE(SouthHas(BoardsOf(records).at(0), Rank::King));
  const std::string whole = "AKQJT98765432";
  records.push_back("md|3S" + whole + ",H" + whole + ",D" + whole + ",|ah|Board 1|");
  records.push_back("md|3H" + whole + ",S" + whole + ",D" + whole + ",|ah|Board 1|");
  EXPECT_EQ(BoardsOf(records).at(0).hands[Seat::South][Suit::Spades].Count(), 13)
      << "the first complete one";
  for (const std::string& wrong : {twice, fourteen}) {
    EXPECT_TRUE(BoardsOf({wrong}).empty());
    EXPECT_EQ(leftOut.impossible, std::vector<int>{1});
  }
}

}  // namespace
}  // namespace tricklet
