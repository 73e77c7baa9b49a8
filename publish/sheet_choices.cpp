#include "publish/sheet_choices.h"

#include <algorithm>
#include <array>

namespace tricklet {
namespace {

constexpr std::array kLayoutNames{"records", "lesson", "slips", "travellers"};
constexpr std::array kPaperNames{"a4", "letter"};

template <class Choice, std::size_t N>
std::optional<Choice> ChoiceOf(const std::array<const char*, N>& names, std::string_view name) {
  for (std::size_t i = 0; i < N; ++i) {
    if (name == names.at(i)) return static_cast<Choice>(i);
  }
  return std::nullopt;
}

}  // namespace

std::span<const int> BoardsPerPage(SheetLayout layout) {
  static constexpr std::array kRecords{18, 12, 8, 4};
  static constexpr std::array kLesson{2, 1, 4};
  switch (layout) {
    case SheetLayout::Records:
      return kRecords;
    case SheetLayout::Lesson:
      return kLesson;
    case SheetLayout::Slips:
    case SheetLayout::Travellers:
      break;
  }
  return {};
}

std::string_view SheetLayoutName(SheetLayout layout) {
  return kLayoutNames.at(static_cast<std::size_t>(layout));
}

std::optional<SheetLayout> SheetLayoutOf(std::string_view name) {
  return ChoiceOf<SheetLayout>(kLayoutNames, name);
}

std::string_view PaperName(Paper paper) {
  return kPaperNames.at(static_cast<std::size_t>(paper));
}

std::optional<Paper> PaperOf(std::string_view name) {
  return ChoiceOf<Paper>(kPaperNames, name);
}

std::optional<PerSeat<bool>> SeatsOf(std::string_view letters) {
  if (letters.empty()) return std::nullopt;
  PerSeat<bool> seats{};
  for (const char letter : letters) {
    const char upper = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 32) : letter;
    const auto seat = std::find_if(kAllSeats.begin(), kAllSeats.end(),
                                   [upper](Seat each) { return SeatName[each].front() == upper; });
    if (seat == kAllSeats.end()) return std::nullopt;
    seats[*seat] = true;
  }
  return seats;
}

}  // namespace tricklet
