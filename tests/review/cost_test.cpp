#include "review/cost.h"

#include <gtest/gtest.h>

#include "tests/support/calls.h"

namespace tricklet::test {
namespace {

Traveller TravellerOf(const std::string& scoring, const std::vector<std::optional<int>>& scores) {
  Traveller traveller;
  traveller.scoring = scoring;
  for (const auto& score : scores) traveller.rows.emplace_back().score = score;
  return traveller;
}

TEST(Cost, ComparesWithTheOtherTables) {
  Board board;  // nobody is vulnerable
  board.boardNumber = 1;
  SetAuction(board, "4S P P P");
  struct Case {
    Traveller traveller;
    int row;
    Side side;
    std::string text;
  };
  // 4S by North: +420 with ten tricks, -50 with nine
  const std::vector<Case> cases{
      {TravellerOf("MP", {{-50}, {420}, {-50}, {170}}), 0, Side::NorthSouth, "67 %"},
      {TravellerOf("MP", {{-50}, {420}, {-50}, {170}}), -1, Side::NorthSouth, "63 %"},
      {TravellerOf("MP", {{420}, {420}, {std::nullopt}}), 0, Side::EastWest, "-50 %"},
      {TravellerOf("XIMP", {{-50}, {420}, {-50}}), 0, Side::NorthSouth, "10 IMPs"},
      {TravellerOf("IMP", {{-50}, {400}}), 0, Side::NorthSouth, "11 IMPs"},
      {TravellerOf("MP", {{-50}}), 0, Side::NorthSouth, "470 points"},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(CostText(CostOf(each.traveller, each.row, board, each.side, 10, 9)), each.text);
  }
}

}  // namespace
}  // namespace tricklet::test
