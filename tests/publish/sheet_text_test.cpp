#include "publish/sheet_text.h"

#include <gtest/gtest.h>

namespace tricklet {
namespace {

TEST(SheetText, ContractsHaveSuitSymbols) {
  for (const auto& [contract, shown] :
       {std::pair("4S", "4♠"), std::pair("1Cxx", "1♣xx"), std::pair("3NTx", "3NTx"),
        std::pair("All Pass", "All Pass"), std::pair("", ""), std::pair("8S", "8S")}) {
    EXPECT_EQ(ContractSymbols(contract), shown);
  }
}

ParContract Contract(int level, BidStrain strain, int result, std::vector<Seat> declarers) {
  return {.level = level,
          .strain = strain,
          .doubled = result < 0,
          .result = result,
          .declarers = std::move(declarers)};
}

TEST(SheetText, ParNamesDeclarersOnceAndTheOtherSideWhenThatScores) {
  using enum BidStrain;
  const std::vector<Seat> ns{Seat::North, Seat::South};
  const std::vector<Seat> ew{Seat::East, Seat::West};
  const struct {
    Par par;
    const char* text;
  } rows[]{
      {{.score = 620, .contracts = {Contract(4, Spades, 0, {Seat::North})}}, "Par 4♠= N +620"},
      {{.score = -150, .contracts = {Contract(1, NoTrump, 2, ew)}}, "Par 1NT+2 EW +150"},
      {{.score = 300, .contracts = {Contract(5, Clubs, -2, ew), Contract(5, Diamonds, -2, ew)}},
       "Par 5♣x-2, 5♦x-2 EW, NS +300"},
      {{.score = 420,
        .contracts = {Contract(5, Clubs, -2, {Seat::West}), Contract(4, Hearts, 0, ns)}},
       "Par 5♣x-2 W, 4♥= NS +420"},
      {{}, "Par All Pass 0"},
  };
  for (const auto& row : rows) EXPECT_EQ(ParSymbols(row.par), row.text);
}

TEST(SheetText, ATrickCountShowsWhereItMakesAContract) {
  EXPECT_EQ(TricksText(6), "·");
  EXPECT_EQ(TricksText(7), "7");
  EXPECT_EQ(TricksText(13), "13");
}

}  // namespace
}  // namespace tricklet
