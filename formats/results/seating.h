// Who sat where in a session: the contestants, from the travellers of its boards.
//
// The same number is the same pair. In both directions it is one pair only where the same players
// sit under it and no number is in both directions of one board, which two pairs must be. Without
// numbers the players decide. Where no pair has a number and most players have changed partners it
// is the players who are contestants. North-South of one table of a match and East-West of the
// other are a team.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "core/notation.h"
#include "formats/results/lin_file.h"
#include "formats/results/traveller.h"

namespace tricklet {

enum class Contestants : std::uint8_t { Pairs, Players, Teams };

struct Contestant {
  std::string number;  ///< as in the file; empty where there is none
  std::string names;   ///< "Ann & Bob", of a team "Ann & Bob, Cy & Di"; empty where not known
  PerSide<bool> sat;   ///< in which directions
};

struct Seating {
  static constexpr int kNobody = -1;

  Contestants kind = Contestants::Pairs;
  std::vector<Contestant> contestants;  ///< as they are met, board by board
  /// By traveller, row and seat: an index of `contestants`, or `kNobody` where it is not known who
  /// sat there.
  std::vector<std::vector<PerSeat<int>>> seats;
  /// Who could not be told apart and why, a sentence each, fit to be shown.
  std::vector<std::string> remarks;
};

/// The travellers of a session; none is null.
using Travellers = std::span<const Traveller* const>;

/// `travellers` are of the session of `file`, each of another board. Rows without a result seat
/// nobody, and neither does anybody count who would be at several tables of one board.
Seating SeatingOf(const LinFile& file, Travellers travellers);

}  // namespace tricklet
