// What a condition says about some of the hands.
#pragma once

#include <cstdint>
#include <vector>

#include "conditions/expression_builder.h"

namespace tricklet {

/// Finds what must hold for some hands when a condition is to hold for all of them.
class WeakCondition {
 public:
  using SeatSet = std::uint8_t;  ///< bit n: seat n
  static constexpr SeatSet kAll = 0xF;

  WeakCondition(ScriptContent& content, ExpressionBuilder& builder);

  /// An expression that looks at no other hands than `seats` and holds wherever `condition` does.
  ExpressionId Of(ExpressionId condition, SeatSet seats);

 private:
  static constexpr ExpressionId kUnknown = -2;

  ExpressionId Implied(ExpressionId id, bool holds, int depth);
  ExpressionId Find(const Node& node, bool holds, int depth);
  ExpressionId Both(ExpressionId a, ExpressionId b);
  ExpressionId Either(ExpressionId a, ExpressionId b);
  bool IsNumber(ExpressionId id, bool truth) const;
  SeatSet SeatsOf(ExpressionId id);

  ScriptContent& content_;
  ExpressionBuilder& builder_;
  std::vector<SeatSet> seatsOf_;  // hands that a node looks at
  SeatSet seats_ = 0;
  std::vector<std::array<ExpressionId, 2>> known_;  // by node: where it fails, where it holds
};

}  // namespace tricklet
