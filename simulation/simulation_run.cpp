#include "simulation/simulation_run.h"

#include "simulation/known_deal.h"

namespace tricklet {
namespace {

std::optional<PlayPoint> PointOf(const SimulationPlan& plan, std::string& why) {
  Board board;
  board.hands = plan.hands;
  board.trumps = plan.contract.strain;
  board.declarer = plan.contract.declarer;
  const bool play = plan.question == SimulatedQuestion::Play;
  return FollowTo(board, play ? std::span<const Card>(plan.cards) : std::span<const Card>(), why);
}

/// Some card is known of nobody.
bool LeavesSome(const Predealt& known) {
  for (int index = 0; index < kCardsInPack; ++index) {
    if (SeatHolding(known.cards, Card::FromIndex(index)) < 0) return true;
  }
  return false;
}

PerSeat<bool> DeclaringHands(Seat declarer) {
  PerSeat<bool> seen;
  seen[declarer] = seen[PartnerOf(declarer)] = true;
  return seen;
}

std::optional<Predealt> Checked(const Predealt& known, std::string& why) {
  if (LeavesSome(known)) return known;
  why = "All cards are known: there is nothing to deal";
  return std::nullopt;
}

std::optional<Predealt> KnownAtPoint(const SimulationPlan& plan, const PlayPoint& point,
                                     std::string& why) {
  const PerSeat<bool> seen = plan.known.value_or(SeenOnPlay(point));
  if (seen[point.onPlay]) return Checked(KnownAt(point, plan.hands, seen), why);
  why = std::string(SeatName[point.onPlay]) + " is on play, so its cards must be known";
  return std::nullopt;
}

}  // namespace

std::optional<Predealt> KnownOf(const SimulationPlan& plan, std::string& why) {
  if (plan.question != SimulatedQuestion::Contract) {
    const auto point = PointOf(plan, why);
    return point ? KnownAtPoint(plan, *point, why) : std::nullopt;
  }
  Predealt known;
  const PerSeat<bool> seen = plan.known.value_or(DeclaringHands(plan.contract.declarer));
  for (const Seat seat : kAllSeats) {
    if (seen[seat]) known.cards[seat] = plan.hands[seat];
  }
  return Checked(known, why);
}

SimulationSheet SheetOf(const SimulationTable& table) {
  return std::visit([](const auto& each) { return SheetOf(each); }, table);
}

std::unique_ptr<SimulationRun> SimulationRun::Begin(const SimulationPlan& plan, Solver& solver,
                                                    std::string& why) {
  why = solver.Missing();
  if (!why.empty()) return nullptr;
  const auto known = KnownOf(plan, why);
  if (!known) return nullptr;
  const auto script = ScriptOfDeals(*known, plan.condition, why);
  if (!script) return nullptr;
  auto run = std::unique_ptr<SimulationRun>(new SimulationRun);
  if (plan.question == SimulatedQuestion::Contract) {
    run->contract_ =
        std::make_unique<ContractTally>(plan.contract, plan.against, plan.vulnerability);
  } else {
    const auto point = PointOf(plan, why);
    if (!point) return nullptr;
    run->cards_ = std::make_unique<CardTally>(*point, plan.contract, plan.vulnerability);
  }
  Tally& tally = run->cards_ ? static_cast<Tally&>(*run->cards_) : *run->contract_;
  run->simulation_ = std::make_unique<Simulation>(
      tally, std::make_unique<Dealing>(script, &solver, RandomSource(plan.seed)), solver,
      plan.limit);
  return run;
}

SimulationTable SimulationRun::Table() const {
  if (cards_) return cards_->Table();
  return contract_->Table();
}

}  // namespace tricklet
