#include "conditions/script.h"

#include <algorithm>
#include <utility>

namespace tricklet {

std::string FaultText(const ScriptFault& fault) {
  return "Line " + std::to_string(fault.line) + ", column " + std::to_string(fault.column) + ": " +
         fault.text;
}

bool Predealt::Any() const {
  return HasCards(cards) || AnyLength();
}

bool Predealt::AnyLength() const {
  for (const auto& hand : lengths) {
    for (const auto& length : hand) {
      if (length) return true;
    }
  }
  return false;
}

bool PrintsDeals(ActionKind kind) {
  return kind != ActionKind::Average && kind != ActionKind::Frequency;
}

Script::Script(ScriptContent content) : content_(std::move(content)) {
  if (!content_.hasActions) content_.actions.push_back({.kind = ActionKind::PrintAll});
  // Nodes that nothing uses are in the list too; a solver that is not needed costs nothing but
  // the question whether there is one.
  usesSolver_ =
      std::ranges::any_of(content_.nodes, [](const Node& node) { return node.op == Op::Tricks; });
}

bool Script::Prints() const {
  return std::ranges::any_of(content_.actions,
                             [](const ScriptAction& action) { return PrintsDeals(action.kind); });
}

std::int64_t Script::Produce(std::int64_t generate) const {
  constexpr std::int64_t kPrinted = 40;
  return content_.produce.value_or(Prints() ? kPrinted : generate);
}

std::int64_t Script::Generate() const {
  constexpr std::int64_t kTries = 10000000;
  return content_.generate.value_or(kTries);
}

}  // namespace tricklet
