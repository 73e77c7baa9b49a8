// How good a contract is, and whether it is better than another.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "simulation/card_tally.h"

namespace tricklet {

struct ContractFigures {
  SimulatedContract contract;
  TrickCounts declarerTricks{};
  Estimate tricks;  ///< declarer's, 0..13
  /// Percent of the deals with the tricks of the contract, of a game in its strain, of a small
  /// slam, and with all of them.
  Estimate makes;
  Estimate game;
  Estimate slam;
  Estimate grandSlam;
  Estimate score;  ///< the declaring side's
};

/// The first contract against the second, by the scores of the same deals from the side of the
/// first one's declarer.
struct ContractComparison {
  Estimate imps;
  Estimate matchpoints;  ///< percent: 100 for a better score, 50 for the same
  Estimate score;
};

struct ContractTable {
  Vulnerability vulnerability = Vulnerability::None;
  std::int64_t deals = 0;
  ContractFigures first;
  std::optional<ContractFigures> second;
  std::optional<ContractComparison> comparison;  ///< with a second one
};

/// "3NT beats 4♥ by 0.8 ± 0.3 IMP"; "are level" where the error is as large as the difference.
/// Empty without a second contract or without deals.
std::string ComparisonText(const ContractTable& table);

class ContractTally : public Tally {
 public:
  ContractTally(const SimulatedContract& first, const std::optional<SimulatedContract>& second,
                Vulnerability vulnerability);

  /// 2 where the contracts differ in strain or declarer.
  std::size_t PositionsPerDeal() const override { return twoPositions_ ? 2 : 1; }
  CardsWanted Wanted() const override { return CardsWanted::OneBest; }
  void AppendPositions(const HandTable& deal,
                       std::vector<SolverPosition>& positions) const override;
  bool Add(std::span<const CardScores> answers) override;
  bool Precise() const override;
  ContractTable Table() const;

 private:
  ContractFigures FiguresOf(const SimulatedContract& contract, const TrickCounts& counts,
                            std::size_t column) const;
  ContractComparison Comparison() const;

  SimulatedContract first_;
  std::optional<SimulatedContract> second_;
  Vulnerability vulnerability_;
  bool twoPositions_;
  ScoresByTricks firstScores_;
  ScoresByTricks secondScores_{};
  TrickCounts firstCounts_{};
  TrickCounts secondCounts_{};
  PairedSums sums_;  // tricks and score of the first, of the second, IMPs, matchpoints
};

}  // namespace tricklet
