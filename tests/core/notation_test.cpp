#include "core/notation.h"

#include <gtest/gtest.h>

#include "core/holding.h"
#include "core/text.h"

namespace tricklet {
namespace {

TEST(Notation, DealerAndVulnerabilityFollowTheBoardNumber) {
  const struct {
    int board;
    Seat dealer;
    Vulnerability vulnerability;
  } kCases[] = {
      {1, Seat::North, Vulnerability::None},        {2, Seat::East, Vulnerability::NorthSouth},
      {4, Seat::West, Vulnerability::All},          {7, Seat::South, Vulnerability::All},
      {15, Seat::South, Vulnerability::NorthSouth}, {16, Seat::West, Vulnerability::EastWest},
      {17, Seat::North, Vulnerability::None},       {999, Seat::South, Vulnerability::All},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(DealerOfBoard(c.board), c.dealer) << c.board;
    EXPECT_EQ(VulOfBoard(c.board), c.vulnerability) << c.board;
  }
}

TEST(Notation, EachVulnerabilityComesFourTimesInSixteenBoards) {
  std::array<int, 4> count{};
  for (int board = 1; board <= 16; ++board) {
    ++count.at(static_cast<std::size_t>(VulOfBoard(board)));
  }
  EXPECT_EQ(count, (std::array<int, 4>{4, 4, 4, 4}));
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

TEST(Text, LeadingNumber) {
  const struct {
    const char* text;
    int value;
  } kCases[] = {{"12", 12},
                {"  7th", 7},
                {"-3", -3},
                {"", 0},
                {"x1", 0},
                {"4-1", 4},
                {"0001 Opener", 1},
                {"99999999999999999999", 32767},
                {"-99999", -32768},
                {" 9", 9},
                {"?", 0}};
  for (const auto& c : kCases) EXPECT_EQ(LeadingNumber(c.text), c.value) << c.text;
}

TEST(Text, ShowableMakesForeignBytesFit) {
  EXPECT_EQ(Showable("caf\xc3\xa9"), "caf\u00e9");
  EXPECT_EQ(Showable("caf\xe9"), "caf\u00e9");
  EXPECT_EQ(Showable(std::string_view("a\0b\tc", 5)), "a b c");
  EXPECT_EQ(Showable("12345678", 4), "1234...");
  EXPECT_EQ(Showable("ab\xc3\xa9", 3), "ab...");  // never half a character
  EXPECT_FALSE(IsValidUtf8("\xed\xa0\x80"));      // a surrogate
  EXPECT_FALSE(IsValidUtf8("\xc0\xaf"));          // an overlong form
  EXPECT_EQ(Utf8ToLatin1("caf\u00e9 \u2660"), "caf\xe9 ?");
}

}  // namespace
}  // namespace tricklet
