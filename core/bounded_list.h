// Lists in messages: short, however much there is to tell.
#pragma once

#include <set>
#include <string>
#include <vector>

namespace tricklet {

/// "2, 5-7, 9": of more than ten entries the first ten, then " ...".
std::string BoundedList(const std::vector<std::string>& entries);
/// Numbers likewise, in the order given.
std::string BoundedList(const std::vector<int>& numbers);
/// Runs of numbers as ranges, likewise bounded: "1-3, 7".
std::string RangesText(const std::set<int>& numbers);

}  // namespace tricklet
