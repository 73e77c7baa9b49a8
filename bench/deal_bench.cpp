// Deals tried a second against scripts of conditions, on one core, each beside the program `dealer`
// with the same script, where that is installed.
#include <array>
#include <string>

#include <benchmark/benchmark.h>

#include "bench/dealer_program.h"
#include "conditions/dealing.h"

namespace tricklet::bench {
namespace {

struct Task {
  const char* name;
  const char* script;
};

constexpr int kTries = 500000;

constexpr std::array kTasks{
    Task{"all", "condition 1"},
    Task{"strong_notrump",
         "hcp(south) >= 15 && hcp(south) <= 17 && shape(south, any 4333 + any 4432 + any 5332)"},
    Task{"raise",
         "opening = spades(south) > 4 and hcp(south) > 10 and losers(south) < 8\n"
         "raise = spades(north) > 3 and hcp(north) > 5 and hcp(north) < 10\n"
         "opening and raise and hcp(east) < 12 and hcp(west) < 12"},
    Task{"either_side",
         "points = hcp(north) + hcp(south)\n"
         "points > 28 or (points < 12 and cccc(west) > 1600)"},
    Task{"wild",
         "n = shape(north, any 7xxx + any 65xx) s = shape(south, any 7xxx + any 65xx)\n"
         "e = shape(east, any 7xxx + any 65xx) w = shape(west, any 7xxx + any 65xx)\n"
         "n + s + e + w > 2"},
    Task{"known_cards",
         "predeal south SAQ54, HK2 predeal west HAQ\n"
         "condition hearts(west) > 4 and hcp(south) > 14 ? clubs(north) < 3 : diamonds(east) > 6"}};

void TryDeals(benchmark::State& state, const Task& task) {
  const ReadOutcome outcome = ReadScript(task.script);
  if (!outcome.script) return state.SkipWithError("the script has faults");
  for ([[maybe_unused]] auto _ : state) {
    Dealing dealing(outcome.script, nullptr, RandomSource(1));
    while (dealing.Tried() < kTries) {
      auto hands = dealing.Next(kTries - dealing.Tried());
      benchmark::DoNotOptimize(hands);
    }
  }
  state.SetItemsProcessed(state.iterations() * kTries);
}

void TryDealsByDealer(benchmark::State& state, const Task& task) {
  const std::string tries = std::to_string(kTries);
  MeasureDealer(
      state,
      "generate " + tries + " produce " + tries + "\n" + task.script + "\naction average 1\n",
      kTries);
}

[[maybe_unused]] const bool kRegistered = [] {
  for (const Task& task : kTasks) {
    const std::string name = std::string("Conditions/") + task.name;
    benchmark::RegisterBenchmark((name + "/ours").c_str(), TryDeals, task)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark((name + "/dealer").c_str(), TryDealsByDealer, task)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
  }
  return true;
}();

}  // namespace
}  // namespace tricklet::bench
