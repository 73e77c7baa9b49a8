// A range of boards as a person writes it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/notation.h"

namespace tricklet {

/// Told when what was typed is no range of boards.
inline constexpr const char* kInvalidRange = "Please enter a valid range";

/// Board numbers 1..999, the first not above the last.
struct BoardRange {
  int first = kFirstBoardNumber;
  int last = kLastBoardNumber;

  bool Has(int boardNumber) const { return boardNumber >= first && boardNumber <= last; }
  friend bool operator==(const BoardRange&, const BoardRange&) = default;
};

/// From the texts of its two ends, blanks around them aside; nothing when they are no range within
/// 1..999.
std::optional<BoardRange> BoardRangeBetween(std::string_view from, std::string_view to);
/// "1-36", "7": likewise.
std::optional<BoardRange> ReadBoardRange(std::string_view text);
/// "1-36", "7".
std::string BoardRangeText(const BoardRange& range);

}  // namespace tricklet
