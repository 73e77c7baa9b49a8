#include "conditions/weak_condition.h"

#include <algorithm>

namespace tricklet {

WeakCondition::WeakCondition(ScriptContent& content, ExpressionBuilder& builder)
    : content_(content), builder_(builder) {}

WeakCondition::SeatSet WeakCondition::SeatsOf(ExpressionId id) {
  for (std::size_t i = seatsOf_.size(); i < content_.nodes.size(); ++i) {
    const Node& node = content_.nodes[i];
    SeatSet seats = 0;
    if (node.op == Op::Tricks) {
      seats = kAll;
    } else if (node.op > Op::Number && node.op < Op::Tricks) {
      seats = static_cast<SeatSet>(1U << static_cast<unsigned>(node.seat));
    }
    for (const ExpressionId operand : {node.first, node.second, node.third}) {
      if (operand != kNoExpression) seats |= seatsOf_[static_cast<std::size_t>(operand)];
    }
    seatsOf_.push_back(seats);
  }
  return seatsOf_[static_cast<std::size_t>(id)];
}

ExpressionId WeakCondition::Of(ExpressionId condition, SeatSet seats) {
  seats_ = seats;
  known_.assign(content_.nodes.size(), {kUnknown, kUnknown});
  return Implied(condition, true, 0);
}

bool WeakCondition::IsNumber(ExpressionId id, bool truth) const {
  const Node& node = content_.nodes[static_cast<std::size_t>(id)];
  return node.op == Op::Number && (node.value != 0) == truth;
}

ExpressionId WeakCondition::Both(ExpressionId a, ExpressionId b) {
  if (a == b || IsNumber(b, true)) return a;
  if (IsNumber(a, true)) return b;
  return builder_.Add({.op = Op::And, .first = a, .second = b});
}

ExpressionId WeakCondition::Either(ExpressionId a, ExpressionId b) {
  if (a == b || IsNumber(a, true) || IsNumber(b, false)) return a;
  if (IsNumber(b, true) || IsNumber(a, false)) return b;
  return builder_.Add({.op = Op::Or, .first = a, .second = b});
}

ExpressionId WeakCondition::Implied(ExpressionId id, bool holds, int depth) {
  constexpr int kDeepest = 500;  // calls that nest
  if ((SeatsOf(id) & ~seats_) == 0) {
    return holds ? id : builder_.Add({.op = Op::Not, .first = id});
  }
  if (depth > kDeepest) return builder_.Number(1);
  const auto index = static_cast<std::size_t>(id);
  const ExpressionId known = known_[index][holds ? 1 : 0];
  if (known != kUnknown) return known;
  const Node node = content_.nodes[index];
  return known_[index][holds ? 1 : 0] = Find(node, holds, depth + 1);
}

ExpressionId WeakCondition::Find(const Node& node, bool holds, int depth) {
  switch (node.op) {
    case Op::Not:
      return Implied(node.first, !holds, depth);
    case Op::And:
    case Op::Or: {
      const ExpressionId first = Implied(node.first, holds, depth);
      const ExpressionId second = Implied(node.second, holds, depth);
      return (node.op == Op::And) == holds ? Both(first, second) : Either(first, second);
    }
    case Op::Choice: {
      const ExpressionId chosen =
          Both(Implied(node.first, true, depth), Implied(node.second, holds, depth));
      const ExpressionId other =
          Both(Implied(node.first, false, depth), Implied(node.third, holds, depth));
      return Either(chosen, other);
    }
    default:
      return builder_.Number(1);
  }
}

}  // namespace tricklet
