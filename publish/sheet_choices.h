// What is printed of a session, and how: what a person chooses before sheets are made.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/notation.h"
#include "core/settings.h"

namespace tricklet {

struct SheetChoices {
  SheetLayout layout = SheetLayout::Records;
  int perPage = 18;  ///< boards on a page: one of `BoardsPerPage(layout)`
  Paper paper = Paper::A4;
  bool landscape = false;
  std::string title = {};                       ///< UTF-8
  std::string subtitle = {};                    ///< UTF-8
  bool colours = true;                          ///< else black alone
  PerSeat<bool> hands{true, true, true, true};  ///< those that a lesson shows
  // What is shown beside the hands.
  bool points = true;
  bool table = true;  ///< of makeable tricks
  bool par = true;
  bool auction = true;
  bool notes = true;
  bool answers = true;  ///< of a lesson: what it leaves out, on pages at the end
  bool bySeat = true;   ///< of slips: a page holds those of one seat; else all hands of a board
  bool ranking = true;  ///< of travellers: the ranking after them
  friend bool operator==(const SheetChoices&, const SheetChoices&) = default;
};

/// How many boards a page of the layout can hold, the usual number first; none where it cannot be
/// chosen.
std::span<const int> BoardsPerPage(SheetLayout layout);

/// "records", "lesson", "slips", "travellers".
std::string_view SheetLayoutName(SheetLayout layout);
std::optional<SheetLayout> SheetLayoutOf(std::string_view name);

/// "a4", "letter".
std::string_view PaperName(Paper paper);
std::optional<Paper> PaperOf(std::string_view name);

/// Letters of seats in any order and case: "NS". Nothing when one is no seat, or there is none.
std::optional<PerSeat<bool>> SeatsOf(std::string_view letters);

}  // namespace tricklet
