#include "core/notation.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "core/holding.h"

namespace tricklet {
namespace {

TEST(Notation, DealerAndVulnerabilityFollowTheBoardNumber) {
  // Laws of Duplicate Bridge, 2: boards 1 to 16; - none, N North-South, E East-West, B both.
  constexpr std::string_view kVulnerable = "-NEBNEB-EB-NB-NE";
  constexpr std::string_view kDealers = "NESW";
  for (int board = 1; board <= 999; ++board) {
    const auto place = static_cast<std::size_t>(board - 1);
    EXPECT_EQ("-NEB"[IndexOf(VulOfBoard(board))], kVulnerable[place % 16]) << board;
    EXPECT_EQ(SeatName[DealerOfBoard(board)].front(), kDealers[place % 4]) << board;
  }
}

TEST(Notation, OrdersAreConvertedByName) {
  EXPECT_EQ(ToStrain(BidStrain::Clubs), Strain::Clubs);
  EXPECT_EQ(ToStrain(BidStrain::Spades), Strain::Spades);
  EXPECT_EQ(ToStrain(BidStrain::NoTrump), Strain::NoTrump);
  EXPECT_EQ(ToTableStrain(Strain::Diamonds), TableStrain::Diamonds);
  EXPECT_EQ(ToTableSeat(Seat::East), TableSeat::East);
  EXPECT_EQ(ToTableSeat(Seat::South), TableSeat::South);
  for (const Strain strain : {Strain::Spades, Strain::Hearts, Strain::Clubs, Strain::NoTrump}) {
    EXPECT_EQ(ToStrain(ToBidStrain(strain)), strain);
  }
}

TEST(Holding, TextIsReadByFirstCharactersAndWrittenInRankOrder) {
  const struct {
    const char* given;
    const char* text;
    const char* pbn;
  } kCases[] = {
      {"", "", ""},
      {" A K 10 5 2", " A K 10 5 2", "AKT52"},
      {"2510KA", " A K 10 5 2", "AKT52"},
      {"KT9", " K 9", "K9"},  // a ten is found through its "1" only
      {"AAxyz-A", " A", "A"},
      {"AKQJ1098765432", " A K Q J 10 9 8 7 6 5 4 3 2", "AKQJT98765432"},
  };
  for (const auto& c : kCases) {
    int cards = 100;
    EXPECT_EQ(HoldingText(AddSpace(c.given)), c.text) << c.given;
    EXPECT_EQ(PBNFormat(AddSpace(c.given), cards), c.pbn) << c.given;
    EXPECT_EQ(cards, 100 + static_cast<int>(std::string(c.pbn).size())) << c.given;
  }
}

}  // namespace
}  // namespace tricklet
