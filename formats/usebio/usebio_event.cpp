#include "formats/usebio/usebio_event.h"

#include <array>
#include <string_view>
#include <utility>

#include "core/text.h"
#include "formats/results/pair_names.h"
#include "formats/usebio/usebio_limits.h"
#include "formats/usebio/usebio_reader.h"
#include "formats/usebio/usebio_text.h"

namespace tricklet {
namespace {

constexpr std::array<std::pair<const char*, std::string EventWords::*>, 4> kWords{{
    {"BOARD_SCORING_METHOD", &EventWords::boardScoring},
    {"PAIRWISE_SCORING_METHOD", &EventWords::pairwiseScoring},
    {"SCORING_METHOD", &EventWords::scoring},
    {"WINNER_TYPE", &EventWords::winners},
}};

void Keep(const std::vector<std::string>& lines, std::vector<std::string>& kept) {
  if (lines.size() > kMaxUsebioLines - kept.size()) throw UsebioRefusal{kUnexpectedFormat};
  kept.insert(kept.end(), lines.begin(), lines.end());
}

/// "1 Hearts".
std::string TeamLine(const pugi::xml_node& team) {
  return std::string(Trim(NamedText(team, "TEAM_ID") + " " + NamedText(team, "TEAM_NAME")));
}

}  // namespace

EventWords WordsOf(const pugi::xml_node& element) {
  EventWords words;
  std::array<bool, kWords.size()> met{};  // of several elements of a name the first counts
  for (const pugi::xml_node& child : element.children()) {
    for (std::size_t at = 0; at < kWords.size(); ++at) {
      const auto& [name, word] = kWords.at(at);
      if (met.at(at) || std::string_view(child.name()) != name) continue;
      met.at(at) = true;
      words.*word = TextOf(child);
    }
  }
  return words;
}

EventWords FirstOf(EventWords first, const EventWords& second) {
  for (const auto& [name, word] : kWords) {
    if ((first.*word).empty()) first.*word = second.*word;
  }
  return first;
}

std::string NamesLine(const pugi::xml_node& pair) {
  std::string line = ChildText(pair, "PAIR_NUMBER") + " " + ChildText(pair, "DIRECTION");
  std::string_view joint = " ";
  for (const pugi::xml_node& player : pair.children("PLAYER")) {
    line += joint;
    line += PlayerName(ChildText(player, "PLAYER_NAME"));
    joint = " & ";
  }
  return line;
}

ParticipantList ReadParticipants(const pugi::xml_node& list, bool teams) {
  ParticipantList read;
  for (const auto& pair : list.select_nodes(".//PAIR")) {
    read.names.push_back(NamesLine(pair.node()));
    read.directions = read.directions || !ChildText(pair.node(), "DIRECTION").empty();
  }
  if (!teams) return read;
  for (const auto& team : list.select_nodes(".//TEAM")) read.teams.push_back(TeamLine(team.node()));
  return read;
}

void AddParticipants(const ParticipantList& list, LinFile& data) {
  Keep(list.names, data.names);
  if (data.teamEvent) Keep(list.teams, data.teamEvent->teams);
}

void SetScoring(const EventWords& words, bool teams, LinFile& data) {
  const std::string usual = teams ? kImps : kMatchPoints;
  std::string word = words.boardScoring.empty() ? words.pairwiseScoring : words.boardScoring;
  if (word.empty() && !teams) word = words.scoring;
  data.boardScoringMethod = word.empty() ? usual : word;
  data.boardScoringAbb = GetAbbreviations(data.boardScoringMethod);
  if (!teams) return;
  data.teamEvent.emplace();
  data.teamEvent->teamScoringMethod = words.scoring.empty() ? usual : words.scoring;
  data.teamEvent->teamScoringAbb = GetAbbreviations(data.teamEvent->teamScoringMethod);
}

bool IsOneWinner(const EventWords& words, const LinFile& data, bool directions) {
  if (!words.winners.empty()) return LeadingNumber(words.winners) == 1;
  return !data.teamEvent && !directions;
}

pugi::xml_node EventOf(const pugi::xml_document& document) {
  const pugi::xml_node club = document.select_node("//CLUB").node();
  const pugi::xml_node event = document.select_node("//EVENT").node();
  if (IsEmpty(club) || IsEmpty(event)) throw UsebioRefusal{kUnexpectedFormat};
  return event;
}

}  // namespace tricklet
