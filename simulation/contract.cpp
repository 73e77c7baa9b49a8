#include "simulation/contract.h"

namespace tricklet {

SimulatedContract ContractOf(const Board& board) {
  return {board.contractLevel, board.trumps, DoublingOf(board.contract), board.declarer};
}

std::string ContractName(const SimulatedContract& contract) {
  const std::string strain(contract.strain == Strain::NoTrump
                               ? StrainLetter[Strain::NoTrump]
                               : SuitSymbol[static_cast<Suit>(contract.strain)]);
  return std::to_string(contract.level) + strain +
         std::string(static_cast<std::size_t>(contract.doubling), 'x');
}

ScoresByTricks ScoresOf(const SimulatedContract& contract, Vulnerability vulnerability) {
  ScoresByTricks scores{};
  const int sign = SideOf(contract.declarer) == Side::NorthSouth ? 1 : -1;
  for (std::size_t tricks = 0; tricks < scores.size(); ++tricks) {
    scores.at(tricks) =
        sign * ScoreContract(vulnerability, contract.level, contract.strain, contract.doubling,
                             static_cast<int>(tricks) - contract.TricksNeeded(), contract.declarer);
  }
  return scores;
}

}  // namespace tricklet
