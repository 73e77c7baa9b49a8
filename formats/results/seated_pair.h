// The two who sit together at a table, and what the passes over the tables of a session share.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "formats/results/seating.h"

namespace tricklet {

inline constexpr std::array kSides{Side::NorthSouth, Side::EastWest};

/// Of a match of teams, the open and the closed room.
inline constexpr std::size_t kTablesOfMatch = 2;

/// North of North-South, East of East-West.
constexpr Seat FirstSeat(Side side) {
  return static_cast<Seat>(IndexOf(side));
}

struct SeatedPair {
  std::string number;   ///< empty where there is none
  std::string players;  ///< the two in one order and letter case; empty where both are not known
};

/// Who sits on `side`. A name that is a number stands for players whose names the file lacks.
SeatedPair PairAt(const TravellerRow& row, Side side);

/// The names as they are shown; empty where they only repeat the number.
std::string NamesAt(const TravellerRow& row, Side side);

/// The table counts: it has a score, a ruling, or points other than 0.
bool HasTable(const TravellerRow& row);

/// Room for everybody, and nobody in it.
Seating Unseated(Travellers travellers, Contestants kind);

/// Seats both players of a side.
void SeatPair(PerSeat<int>& seats, Side side, int contestant);

/// Calls `visit(traveller, row)`, two indices, for each table that counts.
template <class Visit>
void ForEachTable(Travellers travellers, const Visit& visit) {
  for (std::size_t at = 0; at < travellers.size(); ++at) {
    for (std::size_t row = 0; row < travellers[at]->rows.size(); ++row) {
      if (HasTable(travellers[at]->rows[row])) visit(at, row);
    }
  }
}

/// Members 0, 1, 2 ... in groups that grow together.
class Groups {
 public:
  /// Adds a member, alone in its group.
  int Add();
  /// The member that stands for the whole group.
  int Of(int member);
  void Join(int a, int b);

 private:
  int& Parent(int member) { return parents_.at(static_cast<std::size_t>(member)); }
  std::vector<int> parents_;
};

/// Seats the pairs of a session of pairs. `anyNumber` is set where one has a number.
Seating SeatPairs(Travellers travellers, bool& anyNumber);

/// Seats the teams of matches, each board with two tables at the most. Nothing where it does not
/// come out who plays with whom.
std::optional<Seating> SeatTeams(Travellers travellers);

}  // namespace tricklet
