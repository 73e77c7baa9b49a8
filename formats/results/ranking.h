// The ranking of a session, from its travellers.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/notation.h"
#include "formats/results/lin_file.h"
#include "formats/results/traveller.h"

namespace tricklet {

/// How the totals of a ranking are counted.
enum class RankingUnit : std::uint8_t { Percentage, Imps };

/// A pair, player or team and what it has reached.
struct RankedEntrant {
  int place = 0;          ///< 1 for the first; those who are equal share the best of their places
  bool shared = false;    ///< there are others in this place
  std::string number;     ///< as in the file; empty where there is none
  std::string names;      ///< "Ann & Bob"; empty where not known
  int boards = 0;         ///< that count towards the total
  double total = 0;       ///< match points, or IMPs
  double percentage = 0;  ///< of the match points that could be had, 0..100; with IMPs 0
};

/// Those who are compared with each other: all pairs, or those of one direction.
struct RankingTable {
  std::string heading;  ///< "North-South", "East-West"; empty where there is one table only
  std::vector<RankedEntrant> entrants;  ///< the best first
};

struct Ranking {
  RankingUnit unit = RankingUnit::Percentage;
  std::vector<RankingTable> tables;
  /// What could not be ranked and why, a sentence each, for the person.
  std::vector<std::string> notRanked;
};

/// Ranks those who have played `travellers`, which are of the session of `file`.
Ranking MakeRanking(const LinFile& file, const std::vector<Traveller>& travellers);

}  // namespace tricklet
