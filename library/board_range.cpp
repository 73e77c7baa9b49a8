#include "library/board_range.h"

#include "core/text.h"

namespace tricklet {
namespace {

std::optional<BoardRange> ReadRun(std::string_view text) {
  const auto dash = text.find('-');
  if (dash == std::string_view::npos) return BoardRangeBetween(text, text);
  return BoardRangeBetween(text.substr(0, dash), text.substr(dash + 1));
}

std::string RunText(int first, int last) {
  return first == last ? std::to_string(first) : std::to_string(first) + "-" + std::to_string(last);
}

}  // namespace

std::optional<BoardRange> BoardRangeBetween(std::string_view from, std::string_view to) {
  const auto first = NumberFromText(Trim(from));
  const auto last = NumberFromText(Trim(to));
  if (!first || !last || !IsStorable(*first) || !IsStorable(*last) || *first > *last)
    return std::nullopt;
  return BoardRange{*first, *last};
}

BoardRange BoardRangeOf(const std::set<int>& numbers) {
  BoardRange range{*numbers.begin(), *numbers.rbegin()};
  const auto all = static_cast<std::size_t>(range.last - range.first) + 1;
  if (numbers.size() != all) range.only = numbers;
  return range;
}

std::optional<BoardRange> ReadBoardRange(std::string_view text) {
  std::set<int> numbers;
  for (bool more = true; more;) {
    const auto comma = text.find(',');
    more = comma != std::string_view::npos;
    const auto run = ReadRun(text.substr(0, comma));
    if (!run) return std::nullopt;
    for (int number = run->first; number <= run->last; ++number) numbers.insert(number);
    if (more) text.remove_prefix(comma + 1);
  }
  return BoardRangeOf(numbers);
}

std::string BoardRangeText(const BoardRange& range) {
  if (range.only.empty()) return RunText(range.first, range.last);
  std::string text;
  for (auto number = range.only.begin(); number != range.only.end();) {
    const int first = *number;
    int last = first;
    while (++number != range.only.end() && *number == last + 1) ++last;
    text += (text.empty() ? "" : ", ") + RunText(first, last);
  }
  return text;
}

}  // namespace tricklet
