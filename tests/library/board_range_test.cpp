#include "library/board_range.h"

#include <gtest/gtest.h>

namespace tricklet {
namespace {

TEST(BoardRange, IsTwoBoardNumbersInOrder) {
  EXPECT_EQ(ReadBoardRange("1-36"), (BoardRange{1, 36}));
  EXPECT_EQ(ReadBoardRange(" 7 "), (BoardRange{7, 7}));
  for (const char* text : {"", "0", "1000", "9-8", "1-", "-3", "1-2-3", "a-b", "1,3"}) {
    EXPECT_EQ(ReadBoardRange(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace tricklet
