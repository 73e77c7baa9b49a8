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

std::string_view DirectionOf(Side side) {
  return side == Side::NorthSouth ? "NS" : "EW";
}

/// The players in one order and one letter case.
PairPlayers KeyOf(const PairPlayers& players) {
  PairPlayers key{ToUpper(players.first), ToUpper(players.second)};
  if (key.second < key.first) std::swap(key.first, key.second);
  return key;
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
    const std::string number = Showable(TakeWord(rest));
    std::string direction;
    std::string_view names = rest;
    if (const std::string_view word = TakeWord(names); IsDirection(word)) {
      direction = ToUpper(word);
      rest = names;
    }
    const auto joint = rest.find(" & ");
    if (joint == std::string_view::npos) continue;
    auto& numbers =
        numbers_[KeyOf({PlayerName(rest.substr(0, joint)), PlayerName(rest.substr(joint + 3))})];
    for (const Side side : {Side::NorthSouth, Side::EastWest}) {
      if (!direction.empty() && direction != DirectionOf(side)) continue;
      Number& own = numbers[side];
      own.text = own.known ? "" : number;
      own.known = true;
    }
  }
}

std::string PairNames::NumberOf(const PairPlayers& players, Side side) const {
  const auto found = numbers_.find(KeyOf(players));
  return found == numbers_.end() ? "" : found->second[side].text;
}

}  // namespace tricklet
