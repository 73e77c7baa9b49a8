// Which boards stand on which sheet of paper, and what is written above and below them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "publish/published.h"
#include "publish/sheet_choices.h"

namespace tricklet {

/// Deal slips on a page.
inline constexpr int kSlipsPerPage = 12;
/// Boards on a page of a lesson's answers: fewer where these tell of auction or notes, too.
int AnswersPerPage(const SheetChoices& choices);

/// One place of a page.
struct SheetItem {
  std::size_t board = 0;     ///< index in `Published::boards`
  std::optional<Seat> seat;  ///< of a slip
  friend bool operator==(const SheetItem&, const SheetItem&) = default;
};

enum class SheetKind : std::uint8_t { Boards, Answers };

struct SheetPage {
  SheetKind kind = SheetKind::Boards;
  std::vector<SheetItem> items = {};  ///< in the order of reading, from the upper left
  std::string heading = {};           ///< "Hand records, boards 1 to 18"
  std::string foot = {};              ///< may be empty
};

/// The pages of hand records, lessons and deal slips, each with at least one item. Travellers are
/// divided by their length on paper: none.
std::vector<SheetPage> PlanSheets(const Published& published, const SheetChoices& choices);

/// Something of it follows from the double-dummy tables.
bool WantsTables(const SheetChoices& choices);

/// Told when a layout has nothing to show of the boards, such as travellers without results; empty
/// when it has.
std::string WhyNothingToPrint(const Published& published, const SheetChoices& choices);

/// It is a lesson that leaves hands out, which are to be found at its end.
bool HasAnswers(const SheetChoices& choices);

}  // namespace tricklet
