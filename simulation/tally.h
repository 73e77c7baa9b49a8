// What a simulation counts: which positions of a deal are solved, and what becomes of the answers.
#pragma once

#include <span>
#include <vector>

#include "analysis/solver.h"
#include "core/board.h"

namespace tricklet {

/// What is known of the cards of a position.
using CardScores = std::vector<CardScore>;

/// "Small enough" errors, at which a simulation ends by itself.
inline constexpr double kTricksError = 0.1;
inline constexpr double kPercentError = 3.0;
inline constexpr double kImpsError = 0.3;

class Tally {
 public:
  Tally() = default;
  Tally(const Tally&) = delete;
  Tally& operator=(const Tally&) = delete;
  virtual ~Tally() = default;

  /// Positions of each deal, at least 1; the same for all.
  virtual std::size_t PositionsPerDeal() const = 0;
  /// What `Add` needs of each position.
  virtual CardsWanted Wanted() const = 0;
  /// Appends the positions of `deal`.
  virtual void AppendPositions(const HandTable& deal,
                               std::vector<SolverPosition>& positions) const = 0;
  /// Takes the answers for the positions of one deal. False, and nothing taken, when the solver
  /// left something out.
  virtual bool Add(std::span<const CardScores> answers) = 0;
  /// All errors are small enough.
  virtual bool Precise() const = 0;
};

}  // namespace tricklet
