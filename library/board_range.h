// Boards of a library as a person writes them.
#pragma once

#include <optional>
#include <set>
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
  /// Where not empty, only those of them that are in it.
  std::set<int> only = {};

  bool Has(int boardNumber) const {
    return boardNumber >= first && boardNumber <= last &&
           (only.empty() || only.contains(boardNumber));
  }
  friend bool operator==(const BoardRange&, const BoardRange&) = default;
};

/// From the texts of its two ends, blanks around them aside; nothing when they are no range within
/// 1..999.
std::optional<BoardRange> BoardRangeBetween(std::string_view from, std::string_view to);
/// Just these boards, of which there is at least one; `only` is empty where they are a whole range.
BoardRange BoardRangeOf(const std::set<int>& numbers);
/// "1-36", "7", "1-3, 7": likewise.
std::optional<BoardRange> ReadBoardRange(std::string_view text);
/// As `ReadBoardRange` reads it.
std::string BoardRangeText(const BoardRange& range);

}  // namespace tricklet
