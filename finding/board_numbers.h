// Which numbers boards get when they are copied or numbered anew.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "core/notation.h"

namespace tricklet {

enum class NewNumbering : std::uint8_t {
  Keep,      ///< the number that a board has
  SameDeal,  ///< the lowest free one with the same dealer and vulnerability
  InTurn     ///< one after another
};

struct NumberPlan {
  NewNumbering numbering = NewNumbering::SameDeal;
  int first = kFirstBoardNumber;  ///< of `SameDeal` and `InTurn`: 1..999, none below it is given
};

struct NewNumbers {
  std::vector<int> numbers;  ///< for each board, in their order; each once, none of them taken
  std::string fault;         ///< why there are none, in a sentence; else empty
};

/// New numbers for boards that have the numbers `old`; `taken` are those that none can get.
NewNumbers NumbersFor(const std::vector<int>& old, const NumberPlan& plan,
                      const std::set<int>& taken);

/// Boards of both numbers have the same dealer and vulnerability.
bool SameDeal(int number, int other);

}  // namespace tricklet
