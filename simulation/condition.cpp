#include "simulation/condition.h"

#include <memory>

#include "conditions/evaluator.h"
#include "conditions/script.h"

namespace tricklet {
namespace {

/// With what the evaluator refers to.
struct Condition {
  Condition(const std::shared_ptr<const Script>& read, Solver* solver, std::uint64_t seed)
      : script(read), random(seed), evaluator(read, solver, random) {}

  bool Accepts(const HandTable& hands) {
    const Predealt& predealt = script->Content().predealt;
    for (const Seat seat : kAllSeats) {
      for (const Suit suit : kAllSuits) {
        const auto& length = predealt.lengths[seat][suit];
        if (length && hands[seat][suit].Count() != *length) return false;
      }
    }
    return evaluator.Accepts(hands);
  }

  std::shared_ptr<const Script> script;
  RandomSource random;
  Evaluator evaluator;
};

/// False, and why, where another seat is known to hold one of the cards.
bool Join(const HandTable& predealt, KnownCards& known, std::string& why) {
  for (int index = 0; index < kCardsInPack; ++index) {
    const Card card = Card::FromIndex(index);
    const int wanted = SeatHolding(predealt, card);
    if (wanted < 0) continue;
    const int holder = SeatHolding(known.hands, card);
    if (holder >= 0 && holder != wanted) {
      why = "The " + CardText(card) + " is known to be with " +
            std::string(SeatName[static_cast<Seat>(holder)]);
      return false;
    }
    AddCard(known.hands, card, static_cast<Seat>(wanted));
  }
  return true;
}

}  // namespace

std::function<bool(const HandTable&)> ReadCondition(std::string_view text, Solver& solver,
                                                    std::uint64_t seed, KnownCards& known,
                                                    std::string& why) {
  const ReadOutcome read = ReadScript(text);
  if (!read.script) {
    why = read.faults.empty() ? "The condition cannot be read" : FaultText(read.faults.front());
    return {};
  }
  if (!Join(read.script->Content().predealt.cards, known, why)) return {};
  const auto condition = std::make_shared<Condition>(read.script, &solver, seed);
  return [condition](const HandTable& hands) { return condition->Accepts(hands); };
}

}  // namespace tricklet
