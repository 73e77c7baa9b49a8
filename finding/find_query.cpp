#include "finding/find_query.h"

#include <algorithm>
#include <array>

#include "core/text.h"
#include "finding/found_text.h"

namespace tricklet {
namespace {

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80U; });
}

/// `folded` is in lower case. Most texts are ASCII, which need no folding.
bool Has(const std::string& text, const std::string& folded) {
  if (text.empty()) return false;
  if (!IsAscii(text)) return FoldCase(text).find(folded) != std::string::npos;
  const auto same = [](char a, char b) { return ToUpper(a) == ToUpper(b); };
  return std::search(text.begin(), text.end(), folded.begin(), folded.end(), same) != text.end();
}

std::string_view TakeWord(std::string_view& rest) {
  rest = Trim(rest);
  const std::string_view word = rest.substr(0, rest.find_first_of(" \t\r\n"));
  rest.remove_prefix(word.size());
  return word;
}

}  // namespace

FindQuery::FindQuery(std::string_view words, DealTest condition)
    : condition_(std::move(condition)) {
  for (std::string_view word = TakeWord(words); !word.empty(); word = TakeWord(words)) {
    const std::string_view wanted = EqualNoCase(word, "par") ? TakeWord(words) : std::string_view();
    if (wanted.empty()) {
      words_.push_back(TestOf(word));
    } else {
      asksForPar_ = true;
      words_.emplace_back([folded = FoldCase(wanted)](const FoundBoard& board) {
        return Has(FoundParText(board), folded);
      });
    }
  }
}

FindQuery::Test FindQuery::TestOf(std::string_view word) {
  if (EqualNoCase(word, "played")) {
    return [](const FoundBoard& board) { return board.tables > 0; };
  }
  if (EqualNoCase(word, "unplayed")) {
    return [](const FoundBoard& board) { return board.tables == 0; };
  }
  const auto known = [query = BoardQuery(word)](const FoundBoard& board) {
    return query.Matches(board.listed);
  };
  if (BoardQuery::Knows(word)) return known;
  asksForPlayers_ = true;
  return [known, folded = FoldCase(word)](const FoundBoard& board) {
    return known(board) || Has(board.players, folded) || Has(board.note, folded);
  };
}

bool FindQuery::Accepts(const HandTable& hands) const {
  return !condition_ || (IsComplete(hands) && condition_(hands));
}

bool FindQuery::Matches(const FoundBoard& board) const {
  return std::all_of(words_.begin(), words_.end(), [&](const Test& fits) { return fits(board); });
}

bool ReadsAsCondition(std::string_view text) {
  constexpr std::array<std::string_view, 4> kOperators{"==", "&&", "||", "!"};
  return text.find_first_of("()<>") != std::string_view::npos ||
         std::any_of(kOperators.begin(), kOperators.end(), [text](std::string_view sign) {
           return text.find(sign) != std::string_view::npos;
         });
}

}  // namespace tricklet
