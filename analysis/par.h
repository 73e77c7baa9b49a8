// Par: the result of a board when all four hands bid and play perfectly.
#pragma once

#include <string>
#include <vector>

#include "core/board.h"

namespace tricklet {

/// A contract that results in par.
struct ParContract {
  int level = 0;  ///< 1..7
  BidStrain strain = BidStrain::Clubs;
  bool doubled = false;
  int result = 0;               ///< overtricks, 0, or undertricks as a negative number
  std::vector<Seat> declarers;  ///< of one side: those who reach the result
  friend bool operator==(const ParContract&, const ParContract&) = default;
};

struct Par {
  int score = 0;                       ///< North-South's
  std::vector<ParContract> contracts;  ///< none when par is to pass the board out
  friend bool operator==(const Par&, const Par&) = default;
};

/// Par from the double-dummy table: the auction as a game in which either side bids on as long as
/// that improves its score; a contract that fails is doubled. The dealer's side has the first bid.
Par ComputePar(const MakeableTable& table, Seat dealer, Vulnerability vulnerability);

/// The contracts, and the side that scores: "Par 4S= NS +420", "Par 5Cx-2, 5Dx-2 NS +300",
/// "Par 3NT= by West EW +400", "Par All Pass 0".
std::string ParText(const Par& par);

}  // namespace tricklet
