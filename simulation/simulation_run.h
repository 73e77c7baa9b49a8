// A simulation as a person asks for it, for both faces.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "simulation/card_tally.h"
#include "simulation/contract_tally.h"
#include "simulation/simulation.h"
#include "simulation/simulation_sheet.h"

namespace tricklet {

enum class SimulatedQuestion { Lead, Contract, Play };

struct SimulationPlan {
  SimulatedQuestion question = SimulatedQuestion::Lead;
  HandTable hands;  ///< of the board, whether they count as known or not
  SimulatedContract contract;
  std::optional<SimulatedContract> against;  ///< of a contract: another, to compare it with
  Vulnerability vulnerability = Vulnerability::None;
  std::vector<Card> cards;  ///< of a play: those played so far, from the opening lead on
  /// The hands that are known. Unset: of a lead or a play those that the hand on play sees, of a
  /// contract declarer's and dummy's.
  std::optional<PerSeat<bool>> known;
  std::string condition;  ///< of the deals (known_deal.h); empty: every one
  SimulationLimit limit;
  std::uint64_t seed = 1;
};

/// What is known before the dealing, but for what the condition adds. Nothing, and why in a
/// sentence for the person, when the plan cannot be carried out.
std::optional<Predealt> KnownOf(const SimulationPlan& plan, std::string& why);

using SimulationTable = std::variant<CardTable, ContractTable>;
SimulationSheet SheetOf(const SimulationTable& table);

class SimulationRun {
 public:
  /// Null, and why in a sentence for the person, when the plan cannot be carried out or there is no
  /// solver. `solver` outlives the run.
  static std::unique_ptr<SimulationRun> Begin(const SimulationPlan& plan, Solver& solver,
                                              std::string& why);

  /// As `Simulation` has them.
  bool Step(const std::function<bool()>& goOn) { return simulation_->Step(goOn); }
  const SimulationProgress& Progress() const { return simulation_->Progress(); }
  const std::vector<HandTable>& Deals() const { return simulation_->Deals(); }
  /// Of the deals so far.
  SimulationTable Table() const;

 private:
  SimulationRun() = default;

  std::unique_ptr<CardTally> cards_;         // of a lead or a play
  std::unique_ptr<ContractTally> contract_;  // else
  std::unique_ptr<Simulation> simulation_;
};

}  // namespace tricklet
