#include "formats/usebio/usebio_players.h"

#include <utility>

#include "formats/usebio/usebio_text.h"

namespace tricklet {
namespace {

bool IsKnown(const PairPlayers& players) {
  return !players.first.empty() || !players.second.empty();
}

constexpr PerSeat<TravellerLine::Element> kPlayerElements{
    {TravellerLine::NorthPlayer, TravellerLine::EastPlayer, TravellerLine::SouthPlayer,
     TravellerLine::WestPlayer}};

}  // namespace

ListedPlayers ReadListedPlayers(const pugi::xml_node& list, bool teams) {
  ListedPlayers read{ReadParticipants(list, teams), {}, {}};
  for (const auto& found : list.select_nodes(".//PLAYER")) {
    const std::string number = ChildText(found.node(), "PLAYER_NUMBER");
    if (number.empty()) continue;
    read.individuals.emplace_back(number, PlayerName(ChildText(found.node(), "PLAYER_NAME")));
  }
  for (const auto& team : list.select_nodes(".//TEAM")) {
    const std::string number = NamedText(team.node(), "TEAM_ID");
    for (const pugi::xml_node& pair : team.node().children("PAIR")) {
      read.ofTeams.emplace_back(number, NamesLine(pair));
    }
  }
  return read;
}

UsebioPlayers::UsebioPlayers(SessionPairs pairs, const std::vector<const ListedPlayers*>& lists)
    : pairs_(std::move(pairs)) {
  std::map<std::string, std::vector<std::string>> ofTeams;
  for (const ListedPlayers* listed : lists) {
    individuals_.insert(listed->individuals.begin(), listed->individuals.end());
    for (const auto& [team, line] : listed->ofTeams) ofTeams[team].push_back(line);
  }
  for (const auto& [team, lines] : ofTeams) teams_.emplace(team, PairNames(lines));
}

PairPlayers UsebioPlayers::PairOf(const std::string& number, Side side,
                                  const std::array<std::string, 2>& teams) const {
  if (number.empty()) return {};
  PairPlayers players;
  for (const std::string& team : teams) {
    const auto known = teams_.find(team);
    if (known != teams_.end() && !IsKnown(players)) players = known->second.PlayersOf(number, side);
  }
  if (!IsKnown(players)) players = pairs_.names.PlayersOf(number, side);
  if (!IsKnown(players)) players.first = number;
  return players;
}

PerSeat<std::string> UsebioPlayers::Of(const TravellerLine& line, const UsebioMatch* match) const {
  const PerSide<std::string> numbers = PairNumbersOf(line, pairs_.oneWinner);
  // A line of a match is the one of its team, whose direction it gives.
  PerSide<std::array<std::string, 2>> teams;
  if (match != nullptr) {
    const bool eastWest = TextOf(line.At(TravellerLine::Direction)) == "EW";
    teams[eastWest ? Side::EastWest : Side::NorthSouth] = {match->team, match->opponents};
    teams[eastWest ? Side::NorthSouth : Side::EastWest] = {match->opponents, match->team};
  }
  PerSeat<std::string> players;
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    const auto first = static_cast<Seat>(IndexOf(side));
    const PairPlayers pair = PairOf(numbers[side], side, teams[side]);
    players[first] = pair.first;
    players[PartnerOf(first)] = pair.second;
  }
  for (const Seat seat : kAllSeats) {
    const std::string number = TextOf(line.At(kPlayerElements[seat]));
    if (number.empty()) continue;
    const auto known = individuals_.find(number);
    players[seat] = known == individuals_.end() ? number : known->second;
  }
  return players;
}

}  // namespace tricklet
