// The program `dealer`, which deals to conditions too, where it is installed.
#pragma once

#include <string>

#include <benchmark/benchmark.h>

namespace tricklet::bench {

/// Runs `dealer` over the script, for as often as the state wants, which is skipped where the
/// program is not installed or fails. Its own actions decide what it prints, which is thrown away;
/// an average costs least. `deals` are counted for each time.
void MeasureDealer(benchmark::State& state, const std::string& script, int deals);

}  // namespace tricklet::bench
