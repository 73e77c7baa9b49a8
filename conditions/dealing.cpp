#include "conditions/dealing.h"

#include <utility>

namespace tricklet {

Dealing::Dealing(std::shared_ptr<const Script> script, Solver* solver, RandomSource random)
    : script_(std::move(script)),
      random_(random),
      evaluator_(script_, solver, random_),
      shuffle_(script_->Content().predealt, kAllSeats) {}

std::optional<HandTable> Dealing::Next(std::int64_t tries) {
  const ExpressionId condition = script_->Condition();
  for (; tries > 0; --tries) {
    ++tried_;
    shuffle_.Deal(random_);
    evaluator_.Begin(shuffle_.Current());
    if (condition == kNoExpression || evaluator_.Value(condition) != 0) {
      return HandsOf(shuffle_.Current());
    }
  }
  return std::nullopt;
}

}  // namespace tricklet
