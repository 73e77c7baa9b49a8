#include "bench/dealer_program.h"

#include <cstdio>

#ifdef _WIN32
#define popen _popen
#define pclose _pclose
#endif

namespace tricklet::bench {
namespace {

/// Debian keeps it among the games.
constexpr const char* kDealer = "PATH=$PATH:/usr/games exec dealer -s 1 >/dev/null 2>&1";

bool RunDealer(const std::string& script) {
  std::FILE* const input = popen(kDealer, "w");
  if (input == nullptr) return false;
  const int written = std::fputs(script.c_str(), input);
  return pclose(input) == 0 && written >= 0;
}

}  // namespace

void MeasureDealer(benchmark::State& state, const std::string& script, int deals) {
  for ([[maybe_unused]] auto _ : state) {
    if (!RunDealer(script)) {
      state.SkipWithError("the program dealer is not installed, or failed");
      return;
    }
  }
  state.SetItemsProcessed(state.iterations() * deals);
}

}  // namespace tricklet::bench
