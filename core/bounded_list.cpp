#include "core/bounded_list.h"

#include <algorithm>
#include <iterator>

namespace tricklet {

std::string BoundedList(const std::vector<std::string>& entries) {
  constexpr std::size_t kMostListed = 10;
  std::string text;
  for (std::size_t i = 0; i < std::min(entries.size(), kMostListed); ++i) {
    text += (i == 0 ? "" : ", ") + entries[i];
  }
  return text + (entries.size() > kMostListed ? " ..." : "");
}

std::string BoundedList(const std::vector<int>& numbers) {
  std::vector<std::string> entries;
  entries.reserve(numbers.size());
  for (const int number : numbers) entries.push_back(std::to_string(number));
  return BoundedList(entries);
}

std::string RangesText(const std::set<int>& numbers) {
  std::vector<std::string> entries;
  for (auto first = numbers.begin(); first != numbers.end();) {
    auto next = std::next(first);
    int last = *first;
    for (; next != numbers.end() && *next == last + 1; ++next) ++last;
    entries.push_back(std::to_string(*first) + (last == *first ? "" : "-" + std::to_string(last)));
    first = next;
  }
  return BoundedList(entries);
}

}  // namespace tricklet
