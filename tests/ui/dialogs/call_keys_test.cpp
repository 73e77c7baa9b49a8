#include "ui/dialogs/call_keys.h"

#include <gtest/gtest.h>

#include "tests/support/calls.h"
#include "tests/support/scripted_host.h"

namespace tricklet::ui {
namespace {

TEST(CallKeys, TypedTextMakesCallsOrIsRefused) {
  const struct {
    const char* typed;
    const char* calls;
    int refused;
    const char* waiting;
  } cases[] = {
      {"1n", "1NT", 0, ""},
      {"1nt", "1NT", 0, ""},
      {"1NT2nt", "1NT 2NT", 0, ""},
      {"1ntt", "1NT", 1, ""},
      {"1npt", "1NT Pass", 1, ""},
      {"t", "", 1, ""},
      {"4sP", "4S Pass", 0, ""},
      {"1dd", "1D Dbl", 0, ""},
      {"1cdd", "1C Dbl", 1, ""},
      {"3", "", 0, "3"},
      {"13h", "3H", 0, ""},
      {"3p", "", 1, "3"},
      {"3xs", "3S", 1, ""},
      {"089", "", 3, ""},
      {"2s1", "2S", 1, ""},
      {"2s2h", "2S", 1, "2"},
      {"2s2n", "2S 2NT", 0, ""},
      {"7n7", "7NT", 1, ""},
      {"xdr", "", 3, ""},
      {"1hpxd", "1H Pass", 2, ""},  // one's own side's bid is not doubled
      {"1sx", "1S Dbl", 0, ""},
      {"1sxr", "1S Dbl Rdbl", 0, ""},
      {"1sxx", "1S Dbl", 0, "x"},
      {"1sxxx", "1S Dbl Rdbl", 0, ""},
      {"1sxppXx", "1S Dbl Pass Pass Rdbl", 0, ""},
      {"1sxxp2x", "1S Dbl Rdbl", 2, ""},
      {"1sxpx", "1S Dbl Pass", 1, ""},
      {"ppppp1", "Pass Pass Pass Pass", 2, ""},
  };
  for (const auto& [typed, calls, refused, waiting] : cases) {
    test::ScriptedHost host;
    Board board;
    AuctionEntry entry(board, host);
    CallKeys keys(entry);
    int refusals = 0;
    for (const char key : std::string_view(typed)) {
      const CallKeys::Result result = keys.Type(key);
      if (!result.accepted) ++refusals;
      if (result.call) {
        EXPECT_TRUE(entry.Make(*result.call)) << typed;
      }
    }
    Board expected;
    test::SetAuction(expected, calls);
    EXPECT_EQ(entry.Calls(), expected.calls) << typed;
    EXPECT_EQ(refusals, refused) << typed;
    EXPECT_EQ(keys.Typed(), waiting) << typed;
  }
}

TEST(CallKeys, ForgetsWhatIsHalfTyped) {
  test::ScriptedHost host;
  Board board;
  AuctionEntry entry(board, host);
  CallKeys keys(entry);
  keys.Type('4');
  keys.Forget();
  EXPECT_EQ(keys.Typed(), "");
  EXPECT_FALSE(keys.Type('s').accepted);
  EXPECT_EQ(keys.Type('p').call, Call::Pass());
}

}  // namespace
}  // namespace tricklet::ui
