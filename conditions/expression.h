// Expressions as the reader leaves them: nodes in a list, operands before what is made of them.
#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <vector>

#include "core/holding.h"
#include "core/notation.h"

namespace tricklet {

/// The place of a node in the list of its script.
using ExpressionId = std::int32_t;
inline constexpr ExpressionId kNoExpression = -1;

enum class Op : std::uint8_t {
  Number,     ///< `value`
  Count,      ///< table `value` over the whole hand of `seat`
  SuitCount,  ///< table `value` over `suit` of `seat`
  Length,     ///< of `suit` of `seat`
  Shape,      ///< 1 when the lengths of `seat` are in shape set `value`
  HasCard,    ///< 1 when `seat` holds the rank `value` of `suit`
  Cccc,       ///< of `seat`
  Tricks,     ///< of declarer `seat` in strain `value`
  Score,      ///< of contract `value` (`ScoreOf`) with `first` tricks
  Imps,       ///< of `first`
  Rnd,        ///< below `first`
  Not,
  Minus,  // of `first`
  Add,
  Subtract,
  Multiply,
  Divide,
  Modulo,
  Equal,
  NotEqual,
  Less,
  LessOrEqual,
  Greater,
  GreaterOrEqual,
  And,
  Or,     ///< of `first` and `second`; the second is looked at only where it matters
  Choice  ///< `first` ? `second` : `third`
};

struct Node {
  Op op = Op::Number;
  Seat seat = Seat::North;
  Suit suit = Suit::Spades;
  std::int32_t value = 0;
  ExpressionId first = kNoExpression;
  ExpressionId second = kNoExpression;
  ExpressionId third = kNoExpression;
  friend bool operator==(const Node&, const Node&) = default;
};

constexpr int OperandsOf(Op op) {
  if (op < Op::Score) return 0;
  if (op <= Op::Minus) return 1;
  return op == Op::Choice ? 3 : 2;
}

/// What a suit's cards count for. Only the ranks of `relevant` bits matter, which are the lowest
/// of a holding's: `values[holding.Bits() & relevant]`.
struct CountTable {
  unsigned relevant = 0;
  std::vector<std::int32_t> values{0};
};

/// Sets of suit lengths: one bit for each `ShapeIndex`.
using ShapeSet = std::bitset<4096>;

/// The lengths of spades, hearts and diamonds; those of clubs follow from them.
constexpr std::size_t ShapeIndex(int spades, int hearts, int diamonds) {
  return static_cast<std::size_t>(spades) * 256 + static_cast<std::size_t>(hearts) * 16 +
         static_cast<std::size_t>(diamonds);
}

/// Level, strain and vulnerability of an undoubled contract in one number.
constexpr std::int32_t ContractNumber(int level, Strain strain, bool vulnerable) {
  return (level * kStrains + IndexOf(strain)) * 2 + (vulnerable ? 1 : 0);
}

}  // namespace tricklet
