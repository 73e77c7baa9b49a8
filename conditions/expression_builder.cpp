#include "conditions/expression_builder.h"

#include <algorithm>

#include "conditions/arithmetic.h"

namespace tricklet {

std::size_t ExpressionBuilder::Hash::operator()(const Node& node) const {
  std::uint64_t hash = static_cast<std::uint64_t>(node.op) << 16U |
                       static_cast<std::uint64_t>(node.seat) << 8U |
                       static_cast<std::uint64_t>(node.suit);
  for (const std::int32_t part : {node.value, node.first, node.second, node.third}) {
    hash = (hash ^ static_cast<std::uint32_t>(part)) * 0x9E3779B97F4A7C15U;
    hash ^= hash >> 29U;
  }
  return static_cast<std::size_t>(hash);
}

std::optional<std::int32_t> ExpressionBuilder::Folded(const Node& node) const {
  const auto number = [&](ExpressionId id) -> std::optional<std::int32_t> {
    if (id == kNoExpression) return std::nullopt;
    const Node& operand = content_.nodes[static_cast<std::size_t>(id)];
    if (operand.op != Op::Number) return std::nullopt;
    return operand.value;
  };
  const auto first = number(node.first);
  const auto second = number(node.second);
  if (!first) return std::nullopt;
  if (node.op == Op::Not) return *first == 0 ? 1 : 0;
  if (node.op == Op::Minus) return Negated(*first);
  if (node.op == Op::And && *first == 0) return 0;
  if (node.op == Op::Or && *first != 0) return 1;
  if (!second) return std::nullopt;
  if (node.op == Op::And || node.op == Op::Or) return *second != 0 ? 1 : 0;
  if (node.op >= Op::Add && node.op <= Op::GreaterOrEqual) {
    return Computed(node.op, *first, *second);
  }
  return std::nullopt;
}

void ExpressionBuilder::Append(const Node& node) {
  constexpr std::int64_t kMany = 1000000000;
  bool random = node.op == Op::Rnd;
  std::int64_t steps = 1;
  for (const ExpressionId operand : {node.first, node.second, node.third}) {
    if (operand == kNoExpression || !IsRandom(operand)) continue;
    random = true;
    steps = std::min(kMany, steps + RandomSteps(operand));
  }
  content_.nodes.push_back(node);
  random_.push_back(random);
  steps_.push_back(random ? steps : 0);
}

void ExpressionBuilder::TakeOver() {
  std::vector<Node> nodes;
  nodes.swap(content_.nodes);
  content_.nodes.reserve(nodes.size());
  for (const Node& node : nodes) {
    known_.try_emplace(node, static_cast<ExpressionId>(content_.nodes.size()));
    Append(node);
  }
}

ExpressionId ExpressionBuilder::Add(const Node& node) {
  if (const auto value = Folded(node); value) return Number(*value);
  const auto id = static_cast<ExpressionId>(content_.nodes.size());
  const auto [at, added] = known_.try_emplace(node, id);
  if (added) Append(node);
  return at->second;
}

std::int32_t ExpressionBuilder::AddShape(const ShapeSet& set) {
  const auto [at, added] =
      shapes_.try_emplace(set, static_cast<std::int32_t>(content_.shapes.size()));
  if (added) content_.shapes.push_back(set);
  return at->second;
}

}  // namespace tricklet
