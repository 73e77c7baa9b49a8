// Any bytes as a script of deal conditions: either faults, each within the text, or a script that
// can be evaluated and dealt to.
#include <algorithm>

#include "conditions/dealing.h"
#include "conditions/tokens.h"
#include "tests/fuzz/checks.h"

void tricklet::fuzz::Check(std::string_view bytes) {
  std::size_t end = 0;
  for (const Token& token : Tokens(bytes)) {
    Require(token.offset >= end && token.length > 0);
    end = token.offset + token.length;
  }
  Require(end <= bytes.size());
  const ReadOutcome outcome = ReadScript(bytes);
  Require((outcome.script == nullptr) == !outcome.faults.empty());
  for (const ScriptFault& fault : outcome.faults) {
    Require(fault.line >= 1 && fault.column >= 1 && fault.length >= 1 && !fault.text.empty());
  }
  if (!outcome.script || outcome.script->UsesSolver()) return;
  Dealing dealing(outcome.script, nullptr, RandomSource(1));
  RandomSource random(1);
  Evaluator plain(outcome.script, nullptr, random);
  const bool repeatable = bytes.find("rnd") == std::string_view::npos;
  if (const auto hands = dealing.Next(10)) {
    Require(!repeatable || plain.Accepts(*hands));
    for (const ScriptAction& action : outcome.script->Actions()) {
      if (action.expression != kNoExpression) (void)dealing.Value(action.expression);
    }
  }
}
