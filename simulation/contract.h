// The contract of a simulation and what its tricks are worth.
#pragma once

#include <array>
#include <string>

#include "core/board.h"
#include "core/scoring.h"

namespace tricklet {

struct SimulatedContract {
  int level = 1;  ///< 1..7
  Strain strain = Strain::NoTrump;
  Doubling doubling = Doubling::Undoubled;
  Seat declarer = Seat::South;

  int TricksNeeded() const { return kBook + level; }
  friend bool operator==(const SimulatedContract&, const SimulatedContract&) = default;
};

/// The contract of a board whose level is 1..7, as `SetContract` or `GetContract` leave it.
SimulatedContract ContractOf(const Board& board);

/// "4♥x", "3NT".
std::string ContractName(const SimulatedContract& contract);

/// The declaring side's score by declarer's tricks, 0..13.
using ScoresByTricks = std::array<int, kCardsInHand + 1>;
ScoresByTricks ScoresOf(const SimulatedContract& contract, Vulnerability vulnerability);

}  // namespace tricklet
