#include "finding/read_query.h"

#include <memory>
#include <utility>

#include "conditions/evaluator.h"

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

QueryOutcome ReadQuery(std::string_view text, std::string_view words, const GetSolver& getSolver) {
  QueryOutcome outcome;
  if (!ReadsAsCondition(text)) {
    outcome.query = FindQuery(std::string(text) + ' ' + std::string(words));
    return outcome;
  }
  const ReadOutcome read = ReadScript(text);
  for (const ScriptFault& fault : read.faults) {
    outcome.fault += (outcome.fault.empty() ? "" : "\n") + FaultText(fault);
  }
  if (!read.script) return outcome;
  Solver* solver = nullptr;
  if (read.script->UsesSolver()) {
    solver = getSolver ? &getSolver() : nullptr;
    outcome.fault = solver != nullptr ? solver->Missing() : "There is no double-dummy solver";
    if (!outcome.fault.empty()) return outcome;
  }
  const auto test = std::make_shared<Condition>(read.script, solver);
  outcome.query = FindQuery(words, [test](const HandTable& hands) { return test->Accepts(hands); });
  return outcome;
}

}  // namespace tricklet
