#include "core/notation.h"

#include <string>
#include <string_view>
#include <tuple>

#include <gtest/gtest.h>

#include "core/holding.h"

namespace tricklet {
namespace {

TEST(Notation, DealerAndVulnerabilityFollowTheBoardNumber) {
  // Laws of Duplicate Bridge, 2: boards 1 to 16; - none, N North-South, E East-West, B both.
  constexpr std::string_view kVulnerable = "-NEBNEB-EB-NB-NE";
  for (int board = 1; board <= 999; ++board) {
    const auto place = static_cast<std::size_t>(board - 1);
    EXPECT_EQ("-NEB"[IndexOf(VulOfBoard(board))], kVulnerable[place % 16]) << board;
    EXPECT_EQ(SeatName[DealerOfBoard(board)].front(), "NESW"[place % 4]) << board;
  }
}

TEST(Holding, TextIsReadByFirstCharactersAndWrittenInRankOrder) {
  const std::tuple<const char*, const char*, std::string> kCases[] = {
      {"", "", ""},           {"2510KA", " A K 10 5 2", "AKT52"},
      {"KT9", " K 9", "K9"},  // a ten is found through its "1" only
      {"AAxyz-A", " A", "A"}, {"AKQJ1098765432", " A K Q J 10 9 8 7 6 5 4 3 2", "AKQJT98765432"},
  };
  for (const auto& [given, text, pbn] : kCases) {
    int cards = 100;
    EXPECT_EQ(HoldingText(AddSpace(given)), text) << given;
    EXPECT_EQ(PBNFormat(AddSpace(given), cards), pbn) << given;
    EXPECT_EQ(cards, 100 + static_cast<int>(pbn.size())) << given;
  }
}

}  // namespace
}  // namespace tricklet
