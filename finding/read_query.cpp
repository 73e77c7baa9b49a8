#include "finding/read_query.h"

#include <memory>
#include <utility>

#include "conditions/evaluator.h"
#include "core/text.h"

namespace tricklet {
namespace {

/// An evaluator with the numbers that `rnd` gives, the same ones for every search.
class Condition {
 public:
  Condition(std::shared_ptr<const Script> script, Solver* solver)
      : evaluator_(std::move(script), solver, random_) {}
  bool Accepts(const HandTable& hands) { return evaluator_.Accepts(hands); }

 private:
  RandomSource random_{1};
  Evaluator evaluator_;
};

}  // namespace

QueryOutcome ReadQuery(std::string_view condition, std::string_view words, Solver* solver) {
  QueryOutcome outcome;
  if (Trim(condition).empty()) {
    outcome.query = FindQuery(words);
    return outcome;
  }
  const ReadOutcome read = ReadScript(condition);
  for (const ScriptFault& fault : read.faults) {
    outcome.fault += (outcome.fault.empty() ? "" : "\n") + FaultText(fault);
  }
  if (!read.script) return outcome;
  if (read.script->UsesSolver() && solver == nullptr) {
    outcome.fault = "There is no double-dummy solver";
    return outcome;
  }
  const auto test = std::make_shared<Condition>(read.script, solver);
  outcome.query = FindQuery(words, [test](const HandTable& hands) { return test->Accepts(hands); });
  return outcome;
}

QueryOutcome ReadQuery(std::string_view text, Solver* solver) {
  return ReadsAsCondition(text) ? ReadQuery(text, {}, solver) : ReadQuery({}, text, solver);
}

}  // namespace tricklet
