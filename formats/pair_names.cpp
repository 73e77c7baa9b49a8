#include "formats/pair_names.h"

#include "core/text.h"

namespace tricklet {
namespace {

/// Takes the text up to the next blank, tab or comma, and what separates it from the rest.
std::string_view TakeWord(std::string_view& text) {
  constexpr std::string_view kSeparators = " \t,";
  const std::string_view word = text.substr(0, text.find_first_of(kSeparators));
  text.remove_prefix(word.size());
  const auto next = text.find_first_not_of(kSeparators);
  text.remove_prefix(next == std::string_view::npos ? text.size() : next);
  return word;
}

bool IsDirection(std::string_view word) {
  return EqualNoCase(word, "NS") || EqualNoCase(word, "EW");
}

bool SamePlayers(const PairPlayers& a, const PairPlayers& b) {
  const auto same = [](const std::string& one, const std::string& other) {
    return EqualNoCase(one, other);
  };
  return (same(a.first, b.first) && same(a.second, b.second)) ||
         (same(a.first, b.second) && same(a.second, b.first));
}

}  // namespace

std::string PlayerName(std::string_view name) {
  const std::string_view trimmed = Trim(name);
  return EqualNoCase(trimmed, "advanced bbo") ? "Robot" : Showable(trimmed);
}

std::string JoinPlayers(const PairPlayers& players) {
  const bool both = !players.first.empty() && !players.second.empty();
  return players.first + (both ? " & " : "") + players.second;
}

PairNames::PairNames(const std::vector<std::string>& lines) {
  for (const std::string& line : lines) {
    std::string_view rest = line;
    Pair pair;
    pair.number = Showable(TakeWord(rest));
    std::string_view names = rest;
    if (const std::string_view word = TakeWord(names); IsDirection(word)) {
      pair.direction = ToUpper(word);
      rest = names;
    }
    const auto joint = rest.find(" & ");
    if (joint == std::string_view::npos) continue;
    pair.players = {PlayerName(rest.substr(0, joint)), PlayerName(rest.substr(joint + 3))};
    pairs_.push_back(std::move(pair));
  }
}

std::string PairNames::NumberOf(const PairPlayers& players, Side side) const {
  const std::string_view direction = side == Side::NorthSouth ? "NS" : "EW";
  const Pair* found = nullptr;
  for (const Pair& pair : pairs_) {
    const bool elsewhere = !pair.direction.empty() && pair.direction != direction;
    if (elsewhere || !SamePlayers(pair.players, players)) continue;
    if (found != nullptr) return "";
    found = &pair;
  }
  return found == nullptr ? "" : found->number;
}

}  // namespace tricklet
