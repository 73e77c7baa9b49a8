// What the expressions of a script are worth for a deal.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "analysis/solver.h"
#include "conditions/hand_bits.h"
#include "conditions/script.h"
#include "core/random_source.h"

namespace tricklet {

/// Whether deals meet a script, and what its expressions are worth. One for each thread.
class Evaluator {
 public:
  /// `solver` answers `tricks`; it may be null where the script does not use it
  /// (`Script::UsesSolver`). `random` gives `rnd` its numbers. Both have to outlive the evaluator.
  Evaluator(std::shared_ptr<const Script> script, Solver* solver, RandomSource& random);

  /// Whether a complete deal meets the condition. What is predealt does not matter. Raises a
  /// `Fault` when the solver fails.
  bool Accepts(const HandTable& hands);
  /// What an expression of the script is worth for a complete deal.
  int Value(ExpressionId expression, const HandTable& hands);

  // For a deal that is dealt hand by hand, and for several expressions of one.

  /// From here on values are those of another deal. It stays the caller's and may be filled hand
  /// by hand: an expression may be asked for as soon as the hands that it looks at are there.
  void Begin(const DealBits& deal);
  int Value(ExpressionId expression);

 private:
  struct Known {
    std::uint32_t deal = 0;
    std::int32_t value = 0;
  };

  int Compute(const Node& node);
  int Operand(ExpressionId id) { return ValueOf(id); }
  int ValueOf(ExpressionId id);
  int CountOf(const Node& node) const;
  int LengthOf(Seat seat, std::size_t suit) const;
  int ShapeOf(const Node& node) const;
  int ScoreOf(const Node& node);
  int RandomBelow(int bound);
  int TricksOf(const Node& node);
  int SolveTricks(Seat declarer, Strain strain);
  const HandBits& Hand(Seat seat) const { return (*deal_)[static_cast<std::size_t>(seat)]; }

  std::shared_ptr<const Script> script_;
  Solver* solver_;
  RandomSource* random_;
  const DealBits* deal_ = nullptr;
  DealBits own_{};  // the deal of those who bring a table
  std::uint32_t dealNumber_ = 0;
  std::vector<Known> known_;         // for each node; only those that are kept
  std::vector<bool> kept_;           // nodes that several use, and steps in deep expressions
  std::vector<ExpressionId> steps_;  // computed first, so that no call nests too deep
  std::array<std::optional<int>, std::size_t{kSeats} * kStrains>
      tricks_;  // of the deal, by seat and strain
};

}  // namespace tricklet
