// Deals a second to four sets of constraints, each beside the program `dealer` with an equivalent
// condition, where that is installed. It deals at random and throws away what does not meet the
// condition, where ours is built to it, so the two agree in the constraints and not in how often
// they make which of the deals within them.
#include <cstdio>
#include <cstdlib>
#include <string>

#include <benchmark/benchmark.h>

#include "generate/deal.h"

#ifdef _WIN32
#define popen _popen
#define pclose _pclose
#endif

namespace tricklet::bench {
namespace {

struct Task {
  Constraints constraints;
  const char* condition;  // of `dealer`
  int dealerDeals;        // enough to make its start-up small beside its work
};

Constraints OneHand(Limits points) {
  Constraints constraints;
  constraints.numGenHands = 1;
  constraints.pointLimits[GenHand::First] = points;
  return constraints;
}

/// North and South.
Constraints BothHands(Limits first, Limits second) {
  Constraints constraints = OneHand(first);
  constraints.numGenHands = 2;
  constraints.pointLimits[GenHand::Second] = second;
  constraints.handDirection[GenHand::Second] = IndexOf(Seat::South);
  return constraints;
}

void SetType(Constraints& constraints, GenHand hand, HandType type) {
  constraints.useSuitLengths[hand] = false;
  constraints.handTypeIndex[hand] = type;
}

Task Unconstrained() {
  return {OneHand({0, kMaxPoints}), "1", 400000};
}

Task StrongNoTrump() {
  Task task{OneHand({15, 17}),
            "hcp(north) >= 15 && hcp(north) <= 17 && "
            "shape(north, any 4432 + any 5332 + any 4333)",
            40000};
  SetType(task.constraints, GenHand::First, HandType::Balanced);
  return task;
}

Task OneSpadeAndResponse() {
  Task task{BothHands({11, 15}, {8, 10}),
            "hcp(north) >= 11 && hcp(north) <= 15 && spades(north) >= 5 && "
            "hcp(south) >= 8 && hcp(south) <= 10",
            20000};
  task.constraints.suitLimits[GenHand::First][Suit::Spades].minimum = 5;
  return task;
}

Task TwoNoTrumpAndThreeSuits() {
  Task task{BothHands({20, 22}, {10, 12}),
            "hcp(north) >= 20 && hcp(north) <= 22 && "
            "shape(north, any 4432 + any 5332 + any 4333) && "
            "hcp(south) >= 10 && hcp(south) <= 12 && shape(south, any 4441)",
            20};
  SetType(task.constraints, GenHand::First, HandType::Balanced);
  SetType(task.constraints, GenHand::Second, HandType::FourFourFourOne);
  return task;
}

void GenerateDeals(benchmark::State& state, const Task& task) {
  RandomSource random(1);
  for ([[maybe_unused]] auto _ : state) {
    HandTable hands = GenerateDeal(task.constraints, Seat::North, random);
    benchmark::DoNotOptimize(hands);
  }
  state.SetItemsProcessed(state.iterations());
}

/// Debian keeps it among the games.
constexpr const char* kDealer = "PATH=$PATH:/usr/games exec dealer -s 1 >/dev/null 2>&1";

bool DealerInstalled() {
  static const bool installed =
      std::system("PATH=$PATH:/usr/games command -v dealer >/dev/null 2>&1") == 0;
  return installed;
}

/// Runs `dealer` over the task; it prints one average and no deal.
bool RunDealer(const Task& task) {
  FILE* input = popen(kDealer, "w");
  if (input == nullptr) return false;
  const int written = std::fprintf(
      input, "generate 2000000000\nproduce %d\ncondition %s\naction average hcp(east)\n",
      task.dealerDeals, task.condition);
  return pclose(input) == 0 && written > 0;
}

void DealerProgram(benchmark::State& state, const Task& task) {
  for ([[maybe_unused]] auto _ : state) {
    if (!DealerInstalled() || !RunDealer(task)) {
      state.SkipWithError("the program dealer is not installed, or failed");
      return;
    }
  }
  state.SetItemsProcessed(state.iterations() * task.dealerDeals);
}

#define TRICKLET_DEALS(task)                                                                    \
  BENCHMARK_CAPTURE(GenerateDeals, task, task())->UseRealTime()->Unit(benchmark::kMicrosecond); \
  BENCHMARK_CAPTURE(DealerProgram, task, task())->UseRealTime()->Unit(benchmark::kMillisecond)

TRICKLET_DEALS(Unconstrained);
TRICKLET_DEALS(StrongNoTrump);
TRICKLET_DEALS(OneSpadeAndResponse);
TRICKLET_DEALS(TwoNoTrumpAndThreeSuits);

}  // namespace
}  // namespace tricklet::bench
