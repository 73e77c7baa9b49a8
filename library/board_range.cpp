#include "library/board_range.h"

#include "core/text.h"

namespace tricklet {

std::optional<BoardRange> BoardRangeBetween(std::string_view from, std::string_view to) {
  const auto first = NumberFromText(Trim(from));
  const auto last = NumberFromText(Trim(to));
  if (!first || !last || !IsStorable(*first) || !IsStorable(*last) || *first > *last)
    return std::nullopt;
  return BoardRange{*first, *last};
}

std::optional<BoardRange> ReadBoardRange(std::string_view text) {
  const auto dash = text.find('-');
  if (dash == std::string_view::npos) return BoardRangeBetween(text, text);
  return BoardRangeBetween(text.substr(0, dash), text.substr(dash + 1));
}

std::string BoardRangeText(const BoardRange& range) {
  const std::string first = std::to_string(range.first);
  return range.first == range.last ? first : first + "-" + std::to_string(range.last);
}

}  // namespace tricklet
