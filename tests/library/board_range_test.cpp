#include "library/board_range.h"

#include <gtest/gtest.h>

namespace tricklet {
namespace {

TEST(BoardRange, IsTwoBoardNumbersInOrderOrSeveral) {
  EXPECT_EQ(ReadBoardRange("1-36"), (BoardRange{1, 36}));
  EXPECT_EQ(ReadBoardRange(" 7 "), (BoardRange{7, 7}));
  for (const char* text :
       {"", "0", "1000", "9-8", "1-", "-3", "1-2-3", "a-b", "1,", ",", "3,9-8"}) {
    EXPECT_EQ(ReadBoardRange(text), std::nullopt) << text;
  }
  for (const auto& [text, written] :
       {std::pair{"7, 1-3", "1-3, 7"}, {"3,1,2", "1-3"}, {"5", "5"}}) {
    const auto range = ReadBoardRange(text);
    ASSERT_TRUE(range) << text;
    EXPECT_EQ(BoardRangeText(*range), written);
    EXPECT_FALSE(range->Has(4)) << text;
  }
}

}  // namespace
}  // namespace tricklet
