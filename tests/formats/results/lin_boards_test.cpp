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

/// "1:A 12:2 1NTxx !3 ~4": the boards from 1 to 12 that `records` give, South's spades, the
/// contract of an auction; after "!" what is left out as impossible, after "~" for its dealer.
std::string BoardsOf(std::vector<std::string> records, int first = 1, int last = 12) {
  LinFile data;
  data.lin = std::move(records);
  LeftOut leftOut;
  std::string text;
  for (const Board& board : BoardsOfLinData(data, first, last, leftOut)) {
    std::string spades = HoldingText(board.hands[Seat::South][Suit::Spades]);
    std::erase(spades, ' ');
    text += std::to_string(board.boardNumber) + ":" + spades + " ";
    if (!board.calls.Empty()) text += board.contract + " ";
  }
  for (const int number : leftOut.impossible) text += "!" + std::to_string(number) + " ";
  for (const int number : leftOut.foreign) text += "~" + std::to_string(number) + " ";
  return text;
}

TEST(LinCards, ABoardHasTheDealOfItsFirstRecordThatGivesOne) {
  const std::vector<std::string> records{"rh||ah|Board 1|qent|", Record(12, "2"),
                                         Record(1, "A"),         Record(1, "K"),
                                         Record(120, "3"),       "qx|o2|md|4SQ,HA,DA,CA|pg||"};
  EXPECT_EQ(BoardsOf(records), "1:A 2:Q 12:2 ");
  EXPECT_EQ(BoardsOf(records, 2, 11), "2:Q ");
}

TEST(LinCards, ARecordIsOfTheBoardOfItsHeader) {
  const std::pair<const char*, int> kCases[] = {
      {"pn|a,Board 4,c,d|qx|o5|rh||ah|Board 7|", 7},
      {"qx|o5|nt|see Board 4|ah|Board 12 x|ah|Board 3|", 12},
      {"nt|see Board 4|qx|o5|", 5},
      {"Board 4|", 0}};
  for (const auto& [record, board] : kCases) EXPECT_EQ(BoardNumberOfLin(record), board) << record;
}

TEST(LinCards, TheFirstBoardDecidesAboutAuctions) {
  const std::string calls = "mb|1N!|mb|p|mb|p|mb|d|mb|r|mb|p|mb|p|mb|p|";
  EXPECT_EQ(BoardsOf({Record(2, "2", calls), Record(1, "A", calls)}), "1:A 1NTxx 2:2 1NTxx ");
  const std::vector<std::string> second{Record(2, "2", calls), Record(1, "A")};
  EXPECT_EQ(BoardsOf(second), "1:A 2:2 ");
  EXPECT_EQ(BoardsOf(second, 2, 2), "2:2 1NTxx ");
  EXPECT_EQ(BoardsOf({"md|4SA,HA,DA,CA|ah|Board 1|mb|1S|mb|p|mb|p|mb|p|"}), "1:A ~1 ");
}

TEST(LinCards, ADealThatCannotBeRightGivesWayToAnotherTables) {
  const std::string twice = "qx|o1|md|3SA,SA,DA,CA|rh||ah|Board 1|pg||";
  const std::string fourteen = "qx|o1|md|3SAKQJT98765432HA,HK,DA,CA|rh||ah|Board 1|pg||";
  const std::string whole = "AKQJT98765432";
  const std::string complete = "|ah|Board 1|md|3D" + whole + ",H" + whole + ",S" + whole + ",|";
  EXPECT_EQ(BoardsOf({twice, fourteen, Record(1, "K"), Record(1, "Q"), twice}), "1:K ");
  EXPECT_EQ(BoardsOf({twice, Record(1, "K"), complete, Record(1, "Q"),
                      "ah|Board 1|md|3S" + whole + ",H" + whole + ",D" + whole + ",|"}),
            "1: ");
  EXPECT_EQ(BoardsOf({twice}), "!1 ");
}

}  // namespace
}  // namespace tricklet
