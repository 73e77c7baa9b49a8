#include "conditions/dealing.h"

#include <algorithm>

namespace tricklet {

Dealing::Dealing(const std::shared_ptr<const Script>& script, Solver* solver, RandomSource random)
    : plan_(PlanDeals(script)),
      random_(random),
      evaluator_(plan_.script, solver, random_),
      unshuffled_(plan_.script->Content().predealt, plan_.seats),
      shuffle_(unshuffled_) {}

void Dealing::Restart(RandomSource random) {
  random_ = random;
  shuffle_ = unshuffled_;
  tried_ = 0;
}

bool Dealing::Passes(std::size_t place) {
  return std::ranges::all_of(plan_.tests[place],
                             [this](ExpressionId test) { return evaluator_.Value(test) != 0; });
}

bool Dealing::TryDeal() {
  evaluator_.Begin(shuffle_.Current());
  if (!shuffle_.HandByHand()) {
    shuffle_.Deal(random_);
    return Passes(kSeats - 1);
  }
  for (std::size_t place = 0; place < kSeats; ++place) {
    shuffle_.DealHand(place, random_);
    if (!Passes(place)) return false;
  }
  return true;
}

std::optional<HandTable> Dealing::Next(std::int64_t tries) {
  for (; tries > 0; --tries) {
    ++tried_;
    if (TryDeal()) return HandsOf(shuffle_.Current());
  }
  return std::nullopt;
}

}  // namespace tricklet
