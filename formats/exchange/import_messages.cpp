#include "formats/exchange/import_messages.h"

#include <array>
#include <vector>

#include "core/bounded_list.h"

namespace tricklet {
namespace {

/// Each number once.
std::string NumbersText(const std::vector<int>& numbers) {
  const std::set<int> once(numbers.begin(), numbers.end());
  return BoundedList(std::vector<int>(once.begin(), once.end()));
}

/// One reason for leaving something out.
struct Reason {
  const std::vector<int>& boards;
  const char* what;
  const char* why;
  const char* whySeveral;
};

std::string ReasonText(const Reason& reason) {
  const bool one = reason.boards.size() == 1;
  return std::to_string(reason.boards.size()) + " " + reason.what + (one ? " was" : "s were") +
         " left out " + (one ? reason.why : reason.whySeveral) + ": " + NumbersText(reason.boards);
}

}  // namespace

std::string SavedText(const ReadResult& result, const std::string& libraryName) {
  std::string text = "No hands have";
  if (result.boardsSaved == 1) {
    text = "Hand " + std::to_string(result.firstBoard) + " has";
  } else if (result.boardsSaved > 1) {
    text = std::to_string(result.boardsSaved) + " hands (" + std::to_string(result.firstBoard) +
           "-" + std::to_string(result.lastBoard) + ") have";
  }
  return text + " been saved to the library - " + libraryName;
}

std::string BadLineText(const ReadResult& result, const std::string& file) {
  const std::string& reason = result.badLineReason;
  return "It is line " + std::to_string(result.badLineNumber) + " of the file " + file + "\n" +
         (reason.empty() ? "" : reason + "\n") + "Please correct it and import the file again";
}

std::string StoredText(const ReadResult& result, const std::set<int>& stored) {
  if (stored.empty()) return "";
  const bool first = stored.contains(result.firstBoard);
  const bool last = result.boardsSaved == 1 || stored.contains(result.lastBoard);
  if (result.boardsSaved > 0 && first && last) return "";
  const bool one = stored.size() == 1;
  return (one ? "Board " : "Boards ") + RangesText(stored) +
         (one ? " of the file is stored" : " of the file are stored");
}

std::string PartText(const std::set<int>& stored, std::set<int> unstored) {
  std::erase_if(unstored, [&stored](int number) { return stored.contains(number); });
  if (stored.empty()) return "";
  const bool one = stored.size() == 1;
  return (one ? "Board " : "Boards ") + RangesText(stored) +
         (one ? " of the file is stored, " : " of the file are stored, ") +
         (unstored.empty()       ? "the rest is not"
          : unstored.size() == 1 ? RangesText(unstored) + " is not"
                                 : RangesText(unstored) + " are not");
}

std::string LeftOutText(const LeftOut& leftOut) {
  constexpr const char* kImpossible =
      "as impossible (no card, a card twice or more than 13 cards in a hand)";
  constexpr const char* kBroken = "for a broken percent escape";
  constexpr const char* kUnstorable = "because a library holds boards 1 to 999";
  constexpr const char* kForeign = "because the dealer of the record is not the board's";
  constexpr const char* kOverlong = "for having more than 100 calls";
  const std::array<Reason, 6> reasons{{
      {leftOut.repeated, "deal", "because a board of the same number came before it in the file",
       "because a board of the same number came before them in the file"},
      {leftOut.impossible, "deal", kImpossible, kImpossible},
      {leftOut.broken, "LIN record", kBroken, kBroken},
      {leftOut.unstorable, "board", kUnstorable, kUnstorable},
      {leftOut.foreign, "auction", kForeign, kForeign},
      {leftOut.overlong, "auction", kOverlong, kOverlong},
  }};
  std::string text;
  for (const Reason& reason : reasons) {
    if (reason.boards.empty()) continue;
    text += (text.empty() ? "" : "\n") + ReasonText(reason);
  }
  return text;
}

}  // namespace tricklet
