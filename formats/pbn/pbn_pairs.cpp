#include "formats/pbn/pbn_pairs.h"

#include <algorithm>
#include <array>

#include "core/text.h"
#include "formats/pbn/pbn_table.h"

namespace tricklet {
namespace {

/// "N-S" and "NS" alike; empty for anything else.
std::string Direction(std::string text) {
  std::erase(text, '-');
  text = ToUpper(text);
  return text == "NS" || text == "EW" ? text : "";
}

std::string WithoutBlanks(std::string text) {
  std::erase_if(text, [](char c) { return c == ' ' || c == '\t' || c == ','; });
  return Showable(text);
}

}  // namespace

PairPlayers PbnPlayers(std::string_view names) {
  constexpr std::array<std::string_view, 5> kJoints{";", "&", " - ", "/", " + "};
  for (const std::string_view joint : kJoints) {
    const auto at = names.find(joint);
    if (at == std::string_view::npos) continue;
    return {PlayerName(names.substr(0, at)), PlayerName(names.substr(at + joint.size()))};
  }
  return {PlayerName(names), ""};
}

void PbnPairs::Add(const PbnGame& game) {
  if (!game.Has(PbnTag::TotalScoreTable)) return;
  PbnTable table(game, PbnTag::TotalScoreTable);
  const auto namesOf = table.Find({"NAMES", "NAME", "PLAYERS", "PLAYER"});
  const auto player = table.Find({"PLAYERID"});
  const auto number = table.Find({"PAIRID", "PAIR"});
  const auto direction = table.Find({"DIRECTION"});
  while (table.NextRow()) {
    const std::string names = table.Cell(namesOf);
    if (names.empty()) continue;
    if (const std::string own = WithoutBlanks(table.Cell(player)); !own.empty()) {
      players_.try_emplace(own, PlayerName(names));
    }
    Pair pair{WithoutBlanks(table.Cell(number)), Direction(table.Cell(direction)),
              PbnPlayers(names)};
    if (pair.number.empty()) continue;
    if (!directions_[pair.number].insert(pair.direction).second) continue;
    pairs_.push_back(std::move(pair));
  }
}

std::vector<std::string> PbnPairs::Lines() const {
  std::vector<std::string> lines;
  lines.reserve(pairs_.size());
  for (const Pair& pair : pairs_) {
    const bool shared = directions_.at(pair.number).size() > 1 && !pair.direction.empty();
    lines.push_back(pair.number + (shared ? " " + pair.direction + " " : " ") +
                    JoinPlayers(pair.players));
  }
  return lines;
}

std::string PbnPairs::PlayerOf(const std::string& number) const {
  const auto player = players_.find(WithoutBlanks(number));
  return player == players_.end() ? "" : player->second;
}

}  // namespace tricklet
