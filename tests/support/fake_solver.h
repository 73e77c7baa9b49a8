// A solver that needs no library: every value of a table says from which deal, seat and strain it
// came.
#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "analysis/solver.h"

namespace tricklet::test {

class FakeSolver : public Solver {
 public:
  std::string Missing() const override { return missing; }
  std::string Solve(std::span<const std::string> deals, std::span<SolverRecord> records) override {
    const std::lock_guard lock(mutex_);
    batches.push_back(deals.size());
    for (std::size_t i = 0; i < deals.size(); ++i) {
      solved.push_back(deals[i]);
      records[i] = RecordOf(deals[i]);
    }
    dealsSolved += deals.size();
    return failure;
  }
  std::vector<CardScore> SolveCards(const SolverPosition& position) override {
    return solveCards ? solveCards(position) : std::vector<CardScore>();
  }

  /// Numbers 0..13 that differ from deal to deal.
  static SolverRecord RecordOf(const std::string& deal) {
    std::size_t hash = std::hash<std::string>()(deal);
    SolverRecord record{};
    for (auto& tricks : record) {
      tricks = static_cast<std::int32_t>(hash % 14);
      hash = hash / 14 + hash * 31;
    }
    return record;
  }

  std::function<std::vector<CardScore>(const SolverPosition&)> solveCards;
  std::string missing;
  std::string failure;
  std::vector<std::size_t> batches;
  std::vector<std::string> solved;
  std::atomic<std::size_t> dealsSolved{0};  ///< to be read while a thread may be solving

 private:
  std::mutex mutex_;
};

}  // namespace tricklet::test
