// What tricks are worth at a table: in points, and in match points or IMPs against the other tables
// of the board.
#pragma once

#include <optional>
#include <string>

#include "core/board.h"
#include "formats/results/traveller.h"

namespace tricklet {

/// North-South's score of the contract of `board` when declarer takes `tricks`, 0..13.
int ScoreWith(const Board& board, int tricks);

/// What tricks have cost at one table: `points` of the score, and what these are worth against the
/// other tables.
struct Cost {
  enum class Unit { None, Percent, Imps };
  int points = 0;
  /// Per cent of the match points, 0..100, or IMPs, 0..24: the mean against each other table.
  double compared = 0;
  Unit unit = Unit::None;  ///< of `compared`; none where there is nothing to compare with
};

/// What `side` has lost where declarer of `board` ends with `after` tricks in place of `before`, at
/// the table of `row` in `traveller`, with all other tables as they are. Of a traveller of match
/// points in per cent, of others in IMPs. Negative where it is a gain. `row` -1: the play is none
/// of the traveller's, and each of its rows is another table.
Cost CostOf(const Traveller& traveller, int row, const Board& board, Side side, int before,
            int after);

/// "40 %", "1.5 IMPs", "1 IMP"; "170 points" where nothing is compared.
std::string CostText(const Cost& cost);

}  // namespace tricklet
