// The arithmetic of conditions: C's on numbers of 32 bits, except where C promises nothing.
#pragma once

#include <cstdint>
#include <limits>

#include "conditions/expression.h"

namespace tricklet {

/// The value of a binary operator but `And` and `Or`. Results beyond 32 bits wrap around; a
/// division by zero gives 0, and so does its remainder.
constexpr std::int32_t Computed(Op op, std::int32_t left, std::int32_t right) {
  const auto a = static_cast<std::uint32_t>(left);
  const auto b = static_cast<std::uint32_t>(right);
  switch (op) {
    case Op::Add:
      return static_cast<std::int32_t>(a + b);
    case Op::Subtract:
      return static_cast<std::int32_t>(a - b);
    case Op::Multiply:
      return static_cast<std::int32_t>(a * b);
    case Op::Divide:
      if (right == -1) return static_cast<std::int32_t>(0U - a);
      return right == 0 ? 0 : left / right;
    case Op::Modulo:
      return right == 0 || right == -1 ? 0 : left % right;
    case Op::Equal:
      return left == right ? 1 : 0;
    case Op::NotEqual:
      return left != right ? 1 : 0;
    case Op::Less:
      return left < right ? 1 : 0;
    case Op::LessOrEqual:
      return left <= right ? 1 : 0;
    case Op::Greater:
      return left > right ? 1 : 0;
    case Op::GreaterOrEqual:
      return left >= right ? 1 : 0;
    default:
      return 0;
  }
}

constexpr std::int32_t Negated(std::int32_t value) {
  return static_cast<std::int32_t>(0U - static_cast<std::uint32_t>(value));
}

}  // namespace tricklet
