#include "core/bounded_list.h"

#include <algorithm>

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

}  // namespace tricklet
