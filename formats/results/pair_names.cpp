#include "formats/results/pair_names.h"

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

constexpr std::string_view kJoint = " & ";

bool IsDirection(std::string_view word) {
  return EqualNoCase(word, "NS") || EqualNoCase(word, "EW");
}

std::string_view DirectionOf(Side side) {
  return side == Side::NorthSouth ? "NS" : "EW";
}

/// A name by which players are compared.
std::string KeyOf(const std::string& name) {
  std::string key = ToUpper(name);
  std::erase_if(key, [](char c) { return c == ',' || c == '|'; });
  return key;
}

/// The players in one order and one letter case.
PairPlayers KeyOf(const PairPlayers& players) {
  PairPlayers key{KeyOf(players.first), KeyOf(players.second)};
  if (key.second < key.first) std::swap(key.first, key.second);
  return key;
}

bool IsKnown(const PairPlayers& players) {
  return !players.first.empty() || !players.second.empty();
}

/// Takes the direction from the end of a number like "9NS"; empty when it has none.
std::string TakeDirection(std::string& number) {
  constexpr std::size_t kLength = 2;
  if (number.size() <= kLength) return "";
  std::string direction = ToUpper(std::string_view(number).substr(number.size() - kLength));
  if (!IsDirection(direction)) return "";
  number.resize(number.size() - kLength);
  return direction;
}

}  // namespace

std::string PlayerName(std::string_view name) {
  const std::string_view trimmed = Trim(name);
  return EqualNoCase(trimmed, "advanced bbo") ? std::string(kRobot) : Showable(trimmed);
}

std::string JoinPlayers(const PairPlayers& players) {
  const bool both = !players.first.empty() && !players.second.empty();
  return players.first + (both ? std::string(kJoint) : "") + players.second;
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
    const auto joint = rest.find(kJoint);
    if (joint == std::string_view::npos) continue;
    Add(number, direction,
        {PlayerName(rest.substr(0, joint)), PlayerName(rest.substr(joint + kJoint.size()))});
  }
}

void PairNames::Add(const std::string& number, std::string direction, const PairPlayers& players) {
  auto& numbers = numbers_[KeyOf(players)];
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    if (!direction.empty() && direction != DirectionOf(side)) continue;
    Number& own = numbers[side];
    own.text = own.known ? "" : number;
    own.known = true;
  }
  std::string bare = number;
  const std::string ending = TakeDirection(bare);
  if (direction.empty()) direction = ending;
  Seated& seated = seated_[bare];
  if (!IsKnown(seated.anywhere)) seated.anywhere = players;
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    if (direction == DirectionOf(side) && !IsKnown(seated.onSide[side])) {
      seated.onSide[side] = players;
    }
  }
}

std::string PairNames::NumberOf(const PairPlayers& players, Side side) const {
  const auto found = numbers_.find(KeyOf(players));
  return found == numbers_.end() ? "" : found->second[side].text;
}

PairPlayers PairNames::PlayersOf(std::string_view number, Side side) const {
  std::string bare = Showable(number);
  TakeDirection(bare);
  const auto found = seated_.find(bare);
  if (found == seated_.end()) return {};
  const Seated& seated = found->second;
  return IsKnown(seated.onSide[side]) ? seated.onSide[side] : seated.anywhere;
}

}  // namespace tricklet
