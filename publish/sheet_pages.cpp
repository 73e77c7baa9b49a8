#include "publish/sheet_pages.h"

#include <algorithm>
#include <utility>

#include "publish/sheet_tables.h"

namespace tricklet {
namespace {

constexpr const char* kTableFoot = "Tricks that can be made double-dummy; seven and more are shown";

constexpr const char* kNoResultsToPrint = "There are no results of these boards";

/// "Answers, boards 1 to 6", "Answers, board 7".
std::string HeadingOf(const Published& published, const SheetPage& page, const std::string& title) {
  const int first = published.boards.at(page.items.front().board).board.boardNumber;
  const int last = published.boards.at(page.items.back().board).board.boardNumber;
  const std::string numbers =
      first == last ? "board " + std::to_string(first)
                    : "boards " + std::to_string(first) + " to " + std::to_string(last);
  return title + ", " + numbers;
}

/// Puts `items` on pages of `perPage`.
void AddPages(const Published& published, const std::vector<SheetItem>& items, int perPage,
              SheetPage like, const std::string& title, std::vector<SheetPage>& pages) {
  const auto size = static_cast<std::size_t>(std::max(perPage, 1));
  for (std::size_t next = 0; next < items.size(); next += size) {
    const std::size_t end = std::min(next + size, items.size());
    like.items.assign(items.begin() + static_cast<std::ptrdiff_t>(next),
                      items.begin() + static_cast<std::ptrdiff_t>(end));
    like.heading = HeadingOf(published, like, title);
    pages.push_back(like);
  }
}

std::vector<SheetItem> AllBoards(const Published& published, std::optional<Seat> seat = {}) {
  std::vector<SheetItem> items;
  for (std::size_t i = 0; i < published.boards.size(); ++i) items.push_back({i, seat});
  return items;
}

std::vector<SheetPage> PlanSlips(const Published& published, const SheetChoices& choices) {
  std::vector<SheetPage> pages;
  if (choices.bySeat) {
    for (const Seat seat : kAllSeats) {
      AddPages(published, AllBoards(published, seat), kSlipsPerPage, {},
               "Deal slips of " + std::string(SeatName[seat]), pages);
    }
    return pages;
  }
  std::vector<SheetItem> items;
  for (std::size_t i = 0; i < published.boards.size(); ++i) {
    for (const Seat seat : kAllSeats) items.push_back({i, seat});
  }
  AddPages(published, items, kSlipsPerPage, {}, "Deal slips", pages);
  return pages;
}

}  // namespace

bool WantsTables(const SheetChoices& choices) {
  switch (choices.layout) {
    case SheetLayout::Records:
    case SheetLayout::Lesson:
      return choices.table || choices.par;
    case SheetLayout::Travellers:
      return choices.par;
    case SheetLayout::Slips:
      break;
  }
  return false;
}

std::string WhyNothingToPrint(const Published& published, const SheetChoices& choices) {
  if (published.boards.empty()) return kNothingToPublish;
  const bool results = std::any_of(published.boards.begin(), published.boards.end(), HasResults);
  if (choices.layout == SheetLayout::Travellers && !results) return kNoResultsToPrint;
  return {};
}

int AnswersPerPage(const SheetChoices& choices) {
  return choices.auction && choices.notes ? 6 : 4;
}

bool HasAnswers(const SheetChoices& choices) {
  const bool allHands =
      std::all_of(choices.hands.begin(), choices.hands.end(), [](bool shown) { return shown; });
  return choices.layout == SheetLayout::Lesson && choices.answers && !allHands;
}

std::vector<SheetPage> PlanSheets(const Published& published, const SheetChoices& choices) {
  std::vector<SheetPage> pages;
  const std::vector<SheetItem> boards = AllBoards(published);
  switch (choices.layout) {
    case SheetLayout::Records:
      AddPages(published, boards, choices.perPage, {.foot = choices.table ? kTableFoot : ""},
               "Hand records", pages);
      break;
    case SheetLayout::Lesson:
      AddPages(published, boards, choices.perPage, {}, "Lesson", pages);
      if (HasAnswers(choices)) {
        AddPages(published, boards, AnswersPerPage(choices), {.kind = SheetKind::Answers},
                 "Answers", pages);
      }
      break;
    case SheetLayout::Slips:
      return PlanSlips(published, choices);
    case SheetLayout::Travellers:
      break;
  }
  return pages;
}

}  // namespace tricklet
