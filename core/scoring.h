// Duplicate scoring.
#pragma once

#include <string>

#include "core/board.h"

namespace tricklet {

enum class Doubling : int { Undoubled, Doubled, Redoubled };

/// The lowest level, 3..5, of a game in `strain`: one whose tricks are worth 100 points undoubled
/// (Laws of Duplicate Bridge, 77).
int GameLevel(Strain strain);

/// The lowest level of a slam.
inline constexpr int kSmallSlam = 6;

/// The score of a contract from North-South's point of view (Laws of Duplicate Bridge, 77).
/// `level` 0 is a passed-out board, which scores 0. `result` is the declaring side's tricks less
/// six and the level: overtricks, 0, or undertricks as a negative number.
int ScoreContract(Vulnerability vulnerability, int level, Strain strain, Doubling doubling,
                  int result, Seat declarer);

/// "+1", "-2" or "=".
std::string ResultText(int result);

Doubling DoublingOf(const std::string& contract);

/// The result of a played board, for example "4S+1 by North : NS +450"; "All Pass : 0" when it was
/// passed out. `declarerTricks` 0..13.
std::string ResultLine(const Board& board, int declarerTricks);

}  // namespace tricklet
