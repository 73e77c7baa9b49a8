// A simulation of opening leads beside the solver library alone: its call for a batch of positions,
// of the same positions in memory.
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "analysis/dds_types.h"
#include "analysis/deal_text.h"
#include "analysis/solver_library.h"
#include "bench/measure.h"
#include "bench/random_board.h"
#include "bench/solver_call.h"
#include "simulation/simulation_run.h"

namespace tricklet::bench {
namespace {

constexpr int kDeals = 200;
/// Each takes some seconds.
constexpr int kSomeRepetitions = 7;

using SolvePositions = std::int32_t(dds::PositionBatch*, dds::CardTricksBatch*);

SimulationPlan Plan() {
  SimulationPlan plan;
  std::mt19937 random(5);
  plan.hands = RandomBoard(1, random).hands;
  plan.contract = {3, Strain::NoTrump, Doubling::Undoubled, Seat::South};
  plan.limit.deals = kDeals;
  return plan;
}

std::unique_ptr<SimulationRun> Simulated() {
  static const auto solver = LoadSolver({});
  std::string why;
  auto run = SimulationRun::Begin(Plan(), *solver, why);
  while (run && run->Step([] { return true; })) {
  }
  return run;
}

/// The deals of the simulation as one batch of the library.
std::unique_ptr<dds::PositionBatch> Batch() {
  auto batch = std::make_unique<dds::PositionBatch>();
  const auto run = Simulated();
  if (!run) return batch;
  for (const HandTable& deal : run->Deals()) {
    const auto at = static_cast<std::size_t>(batch->count++);
    dds::Position& position = batch->positions.at(at);
    position.trump = IndexOf(Strain::NoTrump);
    position.first = IndexOf(Seat::West);
    const std::string text = SolverDealText(deal);
    std::copy(text.begin(), text.end(), position.cardsLeft.cards.begin());
    batch->target.at(at) = -1;    // as many tricks as there are
    batch->solutions.at(at) = 3;  // of all cards
    batch->mode.at(at) = 1;
  }
  return batch;
}

void PositionsAloneFloor(benchmark::State& state) {
  auto* call = SolverCall<SolvePositions>("SolveAllBoards");
  if (call == nullptr) {
    state.SkipWithError("the solver library has no call for positions");
    return;
  }
  static const auto batch = Batch();
  const auto answer = std::make_unique<dds::CardTricksBatch>();
  bool solved = batch->count == kDeals;
  Measure(
      state, [] {}, [&] { solved = call(batch.get(), answer.get()) == dds::kNoFault && solved; });
  if (!solved) state.SkipWithError("the solver library failed");
}

void SimulateLeads(benchmark::State& state) {
  std::size_t deals = 0;
  Measure(
      state, [&] { deals = 0; },
      [&] {
        if (const auto run = Simulated()) deals = run->Deals().size();
      });
  if (deals != kDeals) state.SkipWithError("not all deals are solved");
}

TRICKLET_BENCH_TIMES(PositionsAloneFloor, kSomeRepetitions);
TRICKLET_BENCH_TIMES(SimulateLeads, kSomeRepetitions);

}  // namespace
}  // namespace tricklet::bench
