#include "simulation/simulation.h"

#include <algorithm>

#include "core/fault.h"
#include "core/text.h"

namespace tricklet {
namespace {

using Clock = std::chrono::steady_clock;

/// The first batch: soon there is something to be seen.
constexpr std::size_t kFirstBatch = 16;
/// What a batch takes at the most, about: so long a person waits for Stop.
constexpr std::chrono::duration<double> kBatchTime{1.5};
/// What is dealt of a condition that is rarely met, before what there is of it is solved.
constexpr std::chrono::duration<double> kDealingTime{1.0};
constexpr std::int64_t kTriesAtOnce = 2000;
/// After each of so many deals it is asked whether the errors are small enough.
constexpr std::int64_t kAskEvery = 50;
/// No error is believed before.
constexpr std::int64_t kFewest = 100;

}  // namespace

std::string ProgressText(const SimulationProgress& progress) {
  std::string text = std::to_string(progress.deals) + (progress.deals == 1 ? " deal" : " deals");
  if (progress.tried > progress.deals) text += " of " + GroupedText(progress.tried) + " dealt";
  return text + ", " + DecimalText(progress.dealing.count(), 1) + " s dealing, " +
         DecimalText(progress.solving.count(), 1) + " s solving";
}

std::string EndText(const SimulationProgress& progress) {
  if (progress.end != SimulationEnd::Precise) return progress.failure;
  return "Stopped by itself: no error is above " + DecimalText(kTricksError, 1) + " tricks, " +
         DecimalText(kPercentError, 0) + " % or " + DecimalText(kImpsError, 1) +
         " IMP of a comparison of contracts.";
}

Simulation::Simulation(Tally& tally, std::unique_ptr<Dealing> dealing, Solver& solver,
                       SimulationLimit limit)
    : tally_(tally),
      dealing_(std::move(dealing)),
      solver_(solver),
      untilPrecise_(limit.untilPrecise),
      batchSize_(kFirstBatch) {
  progress_.wanted = limit.deals;
}

/// Of one batch of the solver.
std::size_t Simulation::MostDeals() const {
  return static_cast<std::size_t>(Solver::kPlayBatch) / tally_.PositionsPerDeal();
}

bool Simulation::Step(const std::function<bool()>& goOn) {
  if (progress_.end != SimulationEnd::Running) return false;
  try {
    DealBatch(goOn);
  } catch (const std::exception& failure) {  // of the solver, asked by the condition
    progress_.end = SimulationEnd::Failed;
    progress_.failure = FaultFrom(failure).Description();
    return false;
  }
  if (batch_.empty() || !goOn()) return progress_.end == SimulationEnd::Running;
  return SolveBatch();
}

void Simulation::DealBatch(const std::function<bool()>& goOn) {
  const auto start = Clock::now();
  const auto left = static_cast<std::size_t>(progress_.wanted - progress_.deals);
  const std::size_t size = std::min({batchSize_, left, MostDeals()});
  while (batch_.size() < size && goOn() && Clock::now() - start < kDealingTime) {
    const std::int64_t before = dealing_->Tried();
    if (auto deal = dealing_->Next(kTriesAtOnce)) {
      batch_.push_back(*deal);
      triesSinceDeal_ = 0;
      continue;
    }
    triesSinceDeal_ += dealing_->Tried() - before;
    if (triesSinceDeal_ < kMostTries) continue;
    progress_.end = SimulationEnd::NoDeal;
    progress_.failure = "None of " + GroupedText(triesSinceDeal_) + " deals meets the condition";
    break;
  }
  progress_.tried = dealing_->Tried();
  progress_.dealing += Clock::now() - start;
}

bool Simulation::SolveBatch() {
  std::vector<SolverPosition> positions;
  positions.reserve(batch_.size() * tally_.PositionsPerDeal());
  for (const HandTable& deal : batch_) tally_.AppendPositions(deal, positions);
  std::vector<CardScores> answers(positions.size());
  const auto start = Clock::now();
  solver_.SolveCardsOfAll(positions, tally_.Wanted(), answers);
  const std::chrono::duration<double> taken = Clock::now() - start;
  progress_.solving += taken;
  const double perDeal = taken.count() / static_cast<double>(batch_.size());
  const double fitting = kBatchTime.count() / std::max(perDeal, 1e-6);
  const double most = static_cast<double>(std::min(MostDeals(), 4 * batch_.size()));
  batchSize_ = static_cast<std::size_t>(std::clamp(fitting, 4.0, std::max(most, 4.0)));
  const std::vector<HandTable> deals = std::move(batch_);
  batch_.clear();
  return Count(deals, answers);
}

bool Simulation::IsPrecise() const {
  return untilPrecise_ && progress_.deals >= kFewest && progress_.deals % kAskEvery == 0 &&
         tally_.Precise();
}

/// Deal by deal, so that it makes no difference how many a batch had.
bool Simulation::Count(std::span<const HandTable> deals, std::span<const CardScores> answers) {
  const bool noMore = progress_.end != SimulationEnd::Running;
  const std::size_t perDeal = tally_.PositionsPerDeal();
  deals_.reserve(deals_.size() + deals.size());
  for (std::size_t i = 0; i < deals.size(); ++i) {
    if (!tally_.Add(answers.subspan(i * perDeal, perDeal))) {
      progress_.end = SimulationEnd::Failed;
      progress_.failure = "The double-dummy solver gave no answer";
      return false;
    }
    deals_.push_back(deals[i]);
    ++progress_.deals;
    if (progress_.deals == progress_.wanted) {
      progress_.end = SimulationEnd::Enough;
      return false;
    }
    if (!IsPrecise()) continue;
    progress_.end = SimulationEnd::Precise;
    progress_.failure.clear();
    return false;
  }
  return !noMore;
}

}  // namespace tricklet
