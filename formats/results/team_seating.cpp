// Who the teams of a session are.
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/text.h"
#include "formats/results/pair_names.h"
#include "formats/results/seated_pair.h"

namespace tricklet {
namespace {

class TeamFinder {
 public:
  explicit TeamFinder(Travellers travellers) : travellers_(travellers) {}

  std::optional<Seating> Find() {
    for (const Traveller* traveller : travellers_) {
      if (!JoinTeams(*traveller)) return std::nullopt;
    }
    Seating seating = Unseated(travellers_, Contestants::Teams);
    bool possible = true;
    ForEachTable(travellers_, [&](std::size_t at, std::size_t row) {
      const TravellerRow& table = travellers_[at]->rows[row];
      for (const Side side : kSides) {
        SeatPair(seating.seats[at][row], side, TeamOf(seating, table, side));
      }
      const PerSeat<int>& seats = seating.seats[at][row];
      possible = possible && seats[Seat::North] != seats[Seat::East];
    });
    if (!possible) return std::nullopt;
    return seating;
  }

 private:
  /// False when somebody is not known, or the board has more tables than a match.
  bool JoinTeams(const Traveller& traveller) {
    std::vector<PerSide<int>> tables;
    for (const TravellerRow& row : traveller.rows) {
      if (!HasTable(row)) continue;
      if (tables.size() == kTablesOfMatch) return false;
      tables.emplace_back();
      for (const Side side : kSides) {
        const auto node = NodeOf(row, side);
        if (!node) return false;
        tables.back()[side] = *node;
      }
    }
    if (tables.size() < kTablesOfMatch) return true;
    groups_.Join(tables[0][Side::NorthSouth], tables[1][Side::EastWest]);
    groups_.Join(tables[0][Side::EastWest], tables[1][Side::NorthSouth]);
    return true;
  }

  int NodeNamed(const std::string& name) {
    const auto [node, isNew] = nodes_.try_emplace(name, 0);
    if (isNew) node->second = groups_.Add();
    return node->second;
  }

  /// The pair, joined with its players: a team has more than two pairs where players change.
  std::optional<int> NodeOf(const TravellerRow& row, Side side) {
    const SeatedPair pair = PairAt(row, side);
    if (pair.number.empty() && pair.players.empty()) return std::nullopt;
    const std::string direction(1, static_cast<char>('0' + IndexOf(side)));
    const int node = NodeNamed(pair.number.empty() ? "pair\n" + pair.players
                                                   : "number\n" + direction + pair.number);
    if (pair.players.empty()) return node;
    for (const Seat seat : {FirstSeat(side), PartnerOf(FirstSeat(side))}) {
      const std::string& player = row.players[seat];
      if (player.empty() || EqualNoCase(player, kRobot)) continue;
      groups_.Join(node, NodeNamed("player\n" + FoldCase(player)));
    }
    return node;
  }

  int TeamOf(Seating& seating, const TravellerRow& row, Side side) {
    const int group = groups_.Of(NodeOf(row, side).value_or(Seating::kNobody));
    const auto [team, isNew] =
        teams_.try_emplace(group, static_cast<int>(seating.contestants.size()));
    if (isNew) seating.contestants.emplace_back();
    Contestant& contestant = seating.contestants[static_cast<std::size_t>(team->second)];
    contestant.sat.fill(true);
    const SeatedPair pair = PairAt(row, side);
    if (shown_.insert(pair.players.empty() ? pair.number : pair.players).second) {
      const std::string names = NamesAt(row, side);
      contestant.names +=
          (contestant.names.empty() ? "" : ", ") + (names.empty() ? pair.number : names);
    }
    return team->second;
  }

  Travellers travellers_;
  std::map<std::string, int> nodes_;
  std::map<int, int> teams_;     // contestants by their groups
  std::set<std::string> shown_;  // the pairs that are in the names of a team
  Groups groups_;
};

}  // namespace

std::optional<Seating> SeatTeams(Travellers travellers) {
  return TeamFinder(travellers).Find();
}

}  // namespace tricklet
