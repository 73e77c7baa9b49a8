#include "ui/dialogs/call_keys.h"

#include <gtest/gtest.h>

#include "tests/support/scripted_host.h"

namespace tricklet::ui {
namespace {

TEST(CallKeys, TypedTextMakesCallsOrIsRefused) {
  // The calls made, one "!" for each key refused, and what waits for more.
  const std::pair<const char*, const char*> cases[] = {
      {"1NT2nt", "1NT 2NT"},
      {"1ntt", "1NT !"},
      {"1npt", "1NT Pass !"},
      {"1dd", "1D Dbl"},
      {"13h", "3H"},
      {"3xs", "3S !"},
      {"089", "! ! !"},
      {"2s1", "2S !"},
      {"2s2h", "2S ! 2..."},
      {"xdr", "! ! !"},
      {"1sxr", "1S Dbl Rdbl"},
      {"1sxx", "1S Dbl x..."},
      {"1sxppXx", "1S Dbl Pass Pass Rdbl"},
      {"1sxxp2x", "1S Dbl Rdbl ! !"},
      {"1sxpx", "1S Dbl Pass !"},
      {"ppppp1", "Pass Pass Pass Pass ! !"},
  };
  for (const auto& [typed, told] : cases) {
    test::ScriptedHost host;
    Board board;
    AuctionEntry entry(board, host);
    CallKeys keys(entry);
    std::string calls;
    std::string refusals;
    for (const char key : std::string_view(typed)) {
      const CallKeys::Result result = keys.Type(key);
      if (!result.accepted) refusals += "! ";
      if (!result.call) continue;
      EXPECT_TRUE(entry.Make(*result.call)) << typed;
      calls += std::string(result.call->Text()) + " ";
    }
    const std::string waiting = keys.Typed().empty() ? "" : std::string(keys.Typed()) + "... ";
    EXPECT_EQ(calls + refusals + waiting, std::string(told) + " ") << typed;
  }
}

}  // namespace
}  // namespace tricklet::ui
