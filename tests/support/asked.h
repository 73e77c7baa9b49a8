// Constraints, each hand in one expression.
#pragma once

#include <array>
#include <optional>

#include "generate/constraints.h"

namespace tricklet::test {

/// What is asked of one hand; of the points and lengths nothing unless it is said.
struct Asked {
  std::array<Limits, 4> suits{{{0, 13}, {0, 13}, {0, 13}, {0, 13}}};
  Limits points{0, 37};
  int direction = 0;
  std::optional<HandType> type{};  ///< where there is one, the lengths do not count
};

inline Constraints Asking(const Asked& first, const Asked& second) {
  Constraints constraints;
  constraints.suitLimits.values = {{{first.suits}, {second.suits}}};
  constraints.pointLimits.values = {{first.points, second.points}};
  constraints.handDirection[GenHand::First] = first.direction;
  constraints.useSuitLengths.values = {{!first.type, !second.type}};
  constraints.handTypeIndex.values = {
      {first.type.value_or(HandType::Balanced), second.type.value_or(HandType::Balanced)}};
  return constraints;
}

constexpr Asked Points(int least, int most = 37) {
  return {.points = {least, most}};
}

constexpr Asked Min(int spades, int hearts, int diamonds, int clubs, Limits points = {0, 37}) {
  return {{{{spades, 13}, {hearts, 13}, {diamonds, 13}, {clubs, 13}}}, points};
}

constexpr Asked Max(int spades, int hearts, int diamonds, int clubs, Limits points = {0, 37}) {
  return {{{{0, spades}, {0, hearts}, {0, diamonds}, {0, clubs}}}, points};
}

constexpr Asked OfType(HandType type, Asked asked = {}) {
  asked.type = type;
  return asked;
}

}  // namespace tricklet::test
