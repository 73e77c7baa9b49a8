// A run: deals are dealt, solved in batches and counted.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "analysis/solver.h"
#include "conditions/dealing.h"
#include "simulation/tally.h"

namespace tricklet {

/// What every table of a simulation says of itself.
inline constexpr std::string_view kEachDealDoubleDummy =
    "Each deal solved double-dummy, with all cards seen.";

inline constexpr int kMostSimulatedDeals = 100000;
inline constexpr int kUsualSimulatedDeals = 1000;

/// When a simulation ends by itself.
struct SimulationLimit {
  int deals = kUsualSimulatedDeals;  ///< 1..`kMostSimulatedDeals`
  bool untilPrecise = true;          ///< also as soon as the errors are small enough (tally.h)
};

enum class SimulationEnd {
  Running,
  Enough,   ///< the number of deals has been reached
  Precise,  ///< the errors are small enough (tally.h)
  NoDeal,   ///< no deal was found among `kMostTries`
  Failed    ///< the solver did not answer
};

/// How far it is.
struct SimulationProgress {
  SimulationEnd end = SimulationEnd::Running;
  std::int64_t deals = 0;
  std::int64_t wanted = 0;
  std::int64_t tried = 0;  ///< dealt, those that were not taken among them
  std::chrono::duration<double> dealing{};
  std::chrono::duration<double> solving{};
  std::string failure;  ///< a sentence for the person, of NoDeal and Failed
};

/// "1000 deals of 58,212 dealt, 0.4 s dealing, 41.0 s solving"
std::string ProgressText(const SimulationProgress& progress);
/// Why it has ended: "Stopped by itself: ..."; empty while it runs and at the number of deals.
std::string EndText(const SimulationProgress& progress);

/// Deterministic: the deals of `Dealing` in their order, whatever the time that they take, and
/// whether it is to end is asked after fixed numbers of them.
class Simulation {
 public:
  /// Tries without a deal before it gives up.
  static constexpr std::int64_t kMostTries = 20'000'000;

  /// `tally` and `solver` outlive the simulation.
  Simulation(Tally& tally, std::unique_ptr<Dealing> dealing, Solver& solver, SimulationLimit limit);

  /// Deals and solves some more, for about a second. False when it has ended. Dealing is left when
  /// `goOn`, asked every now and then, returns false; nothing is lost then. May be called from any
  /// thread, by one at a time.
  bool Step(const std::function<bool()>& goOn);

  const SimulationProgress& Progress() const { return progress_; }
  /// The deals that have been counted, in order.
  const std::vector<HandTable>& Deals() const { return deals_; }

 private:
  void DealBatch(const std::function<bool()>& goOn);
  bool SolveBatch();
  bool IsPrecise() const;
  bool Count(std::span<const HandTable> deals, std::span<const CardScores> answers);
  std::size_t MostDeals() const;

  Tally& tally_;
  std::unique_ptr<Dealing> dealing_;
  Solver& solver_;
  bool untilPrecise_;
  SimulationProgress progress_;
  std::vector<HandTable> deals_;
  std::vector<HandTable> batch_;  // dealt and not yet counted
  std::size_t batchSize_;         // deals of the next batch
  std::int64_t triesSinceDeal_ = 0;
};

}  // namespace tricklet
