#include "formats/results/seating.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "core/bounded_list.h"
#include "core/text.h"
#include "formats/results/pair_names.h"
#include "formats/results/seated_pair.h"

namespace tricklet {
namespace {

/// A match of teams: by the file, or by its scoring when no board has more tables than a match.
bool IsTeamEvent(const LinFile& file, Travellers travellers) {
  if (file.teamEvent) return true;
  return file.boardScoringMethod == "IMPS" &&
         std::all_of(travellers.begin(), travellers.end(), [](const Traveller* traveller) {
           return traveller->rows.size() <= kTablesOfMatch;
         });
}

/// The name is not that of all robots.
bool IsSomebody(const std::string& name) {
  return !name.empty() && !EqualNoCase(name, kRobot);
}

/// Most of the players who have played several boards have had several partners on them.
bool ChangePartners(Travellers travellers) {
  struct Met {
    std::string partner;
    std::size_t board;
    bool often = false;
    bool several = false;
  };
  std::map<std::string, Met> players;
  ForEachTable(travellers, [&](std::size_t at, std::size_t row) {
    const PerSeat<std::string>& names = travellers[at]->rows[row].players;
    for (const Seat seat : kAllSeats) {
      if (!IsSomebody(names[seat])) continue;
      const std::string partner = FoldCase(names[PartnerOf(seat)]);
      Met& met = players.try_emplace(FoldCase(names[seat]), Met{partner, at}).first->second;
      if (met.board == at) continue;
      met.often = true;
      met.several = met.several || met.partner != partner;
    }
  });
  std::size_t often = 0;
  std::size_t several = 0;
  for (const auto& [name, met] : players) {
    if (met.often) ++often;
    if (met.several) ++several;
  }
  return 2 * several > often;
}

Seating SeatPlayers(Travellers travellers) {
  Seating seating = Unseated(travellers, Contestants::Players);
  std::map<std::string, int> known;
  ForEachTable(travellers, [&](std::size_t at, std::size_t row) {
    const PerSeat<std::string>& names = travellers[at]->rows[row].players;
    for (const Seat seat : kAllSeats) {
      if (names[seat].empty()) continue;
      const auto [index, isNew] =
          known.try_emplace(FoldCase(names[seat]), static_cast<int>(seating.contestants.size()));
      if (isNew) seating.contestants.push_back({"", names[seat], {}});
      seating.contestants[static_cast<std::size_t>(index->second)].sat[SideOf(seat)] = true;
      seating.seats[at][row][seat] = index->second;
    }
  });
  return seating;
}

/// Notes the boards at which it is not known who sat there.
void NoteUnknown(Travellers travellers, Seating& seating) {
  std::set<int> boards;
  ForEachTable(travellers, [&](std::size_t at, std::size_t row) {
    const PerSeat<int>& seats = seating.seats[at][row];
    if (std::find(seats.begin(), seats.end(), Seating::kNobody) != seats.end()) {
      boards.insert(travellers[at]->boardNumber);
    }
  });
  if (boards.empty()) return;
  seating.remarks.push_back("Players without a name or number are not ranked (board" +
                            std::string(boards.size() == 1 ? " " : "s ") + RangesText(boards) +
                            ")");
}

/// The contestants whom a board has at several tables, or in both directions of one.
std::set<int> FindRepeated(Travellers travellers, const Seating& seating) {
  const bool pairs = seating.kind == Contestants::Pairs;
  std::vector<std::size_t> lastBoard(seating.contestants.size(), travellers.size());
  std::set<int> repeated;
  ForEachTable(travellers, [&](std::size_t at, std::size_t row) {
    for (const Seat seat : kAllSeats) {
      if (pairs && seat != FirstSeat(SideOf(seat))) continue;  // one for both players
      const int contestant = seating.seats[at][row][seat];
      if (contestant == Seating::kNobody) continue;
      std::size_t& last = lastBoard[static_cast<std::size_t>(contestant)];
      if (std::exchange(last, at) == at) repeated.insert(contestant);
    }
  });
  return repeated;
}

void Unseat(const std::set<int>& repeated, Seating& seating) {
  if (repeated.empty()) return;
  for (auto& board : seating.seats) {
    for (PerSeat<int>& seats : board) {
      for (int& contestant : seats) {
        if (repeated.contains(contestant)) contestant = Seating::kNobody;
      }
    }
  }
  std::vector<std::string> names;
  for (const int index : repeated) {
    const Contestant& one = seating.contestants[static_cast<std::size_t>(index)];
    names.push_back(Showable(one.names.empty() ? "pair " + one.number : one.names));
  }
  seating.remarks.push_back("At several tables of one board, and so not ranked: " +
                            BoundedList(names));
}

Seating Unranked(Travellers travellers, Contestants kind, const std::string& why) {
  Seating seating = Unseated(travellers, kind);
  seating.remarks.push_back(why);
  return seating;
}

}  // namespace

Seating SeatingOf(const LinFile& file, Travellers travellers) {
  if (IsTeamEvent(file, travellers)) {
    if (auto teams = SeatTeams(travellers)) {
      const bool listed = file.teamEvent && !file.teamEvent->teams.empty();
      const bool tooMany = listed && teams->contestants.size() > file.teamEvent->teams.size();
      if (!tooMany) return std::move(*teams);
    }
    return Unranked(travellers, Contestants::Teams,
                    "The teams cannot be ranked: it is not known which tables belong together");
  }
  bool anyNumber = false;
  Seating seating = SeatPairs(travellers, anyNumber);
  if (!anyNumber && ChangePartners(travellers)) seating = SeatPlayers(travellers);
  NoteUnknown(travellers, seating);
  Unseat(FindRepeated(travellers, seating), seating);
  return seating;
}

}  // namespace tricklet
