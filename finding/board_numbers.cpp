#include "finding/board_numbers.h"

#include "core/bounded_list.h"

namespace tricklet {
namespace {

constexpr int kCycle = 16;  // boards until dealer and vulnerability are the same again

std::string NotFree(const std::set<int>& numbers) {
  const bool one = numbers.size() == 1;
  return (one ? "Board " : "Boards ") + RangesText(numbers) + (one ? " is" : " are") +
         " there already";
}

int NextSameDeal(int number, int first, const std::set<int>& taken) {
  int next = first + (number - first % kCycle + kCycle) % kCycle;
  while (taken.contains(next)) next += kCycle;
  return next;
}

}  // namespace

bool SameDeal(int number, int other) {
  return (number - other) % kCycle == 0;
}

NewNumbers NumbersFor(const std::vector<int>& old, const NumberPlan& plan,
                      const std::set<int>& taken) {
  NewNumbers found;
  std::set<int> used = taken;
  std::set<int> refused;
  int next = plan.first;
  found.numbers.reserve(old.size());
  for (const int number : old) {
    const int given = plan.numbering == NewNumbering::Keep ? number
                      : plan.numbering == NewNumbering::SameDeal
                          ? NextSameDeal(number, plan.first, used)
                          : next++;
    if (!IsStorable(given)) {
      return {{}, "A library can have no board above " + std::to_string(kLastBoardNumber)};
    }
    if (!used.insert(given).second) refused.insert(given);
    found.numbers.push_back(given);
  }
  if (!refused.empty()) return {{}, NotFree(refused)};
  return found;
}

}  // namespace tricklet
