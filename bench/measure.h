// How the benchmarks of files are timed.
#pragma once

#include <chrono>

#include <benchmark/benchmark.h>

namespace tricklet::bench {

inline constexpr int kRepetitions = 21;

/// Times `work` alone, after `prepare`.
template <class Prepare, class Work>
void Measure(benchmark::State& state, Prepare prepare, Work work) {
  for ([[maybe_unused]] auto _ : state) {
    prepare();
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(taken.count());
  }
}

#define TRICKLET_BENCH_TIMES(function, repetitions) \
  BENCHMARK(function)                               \
      ->UseManualTime()                             \
      ->Iterations(1)                               \
      ->Repetitions(repetitions)                    \
      ->ReportAggregatesOnly()                      \
      ->Unit(benchmark::kMillisecond)

#define TRICKLET_BENCH(function) TRICKLET_BENCH_TIMES(function, kRepetitions)

}  // namespace tricklet::bench
