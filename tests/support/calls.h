// Auctions from text.
#pragma once

#include <sstream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "core/board.h"

namespace tricklet::test {

/// The call that `text` names; the test fails when it names none.
inline Call CallOf(std::string_view text) {
  const auto call = Call::FromText(text);
  EXPECT_TRUE(call) << text << " is no call";
  return call.value_or(Call::Pass());
}

/// The board's auction becomes the calls of `text`, separated by blanks.
inline void SetAuction(Board& board, const std::string& text) {
  board.calls.Clear();
  std::istringstream words(text);
  for (std::string word; words >> word;) board.calls.Add(CallOf(word));
  GetContract(board);
}

}  // namespace tricklet::test
