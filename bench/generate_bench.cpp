// Deals a second to four sets of constraints, each beside the program `dealer` with an equivalent
// condition, where that is installed. It deals at random and throws away what does not meet the
// condition, where ours is built to it, so the two agree in the constraints and not in how often
// they make which of the deals within them.
#include <string>

#include <benchmark/benchmark.h>

#include "bench/dealer_program.h"
#include "generate/deal.h"

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

void DealerProgram(benchmark::State& state, const Task& task) {
  const std::string script = "generate 2000000000\nproduce " + std::to_string(task.dealerDeals) +
                             "\ncondition " + task.condition + "\naction average hcp(east)\n";
  MeasureDealer(state, script, task.dealerDeals);
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
