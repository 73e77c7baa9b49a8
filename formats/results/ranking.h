// The ranking of a session, from its travellers.
//
// Match points. The percentage of a contestant is the mean of its percentages of the boards that it
// has played, each by the board's own top, so that every board weighs the same however many tables
// have played it (Laws of Duplicate Bridge, 78A, which says how a board is scored; with the same
// top everywhere it is the total by what could be had). A ruling counts as its percentage. A board
// that a contestant has not played does not count for it.
//
// IMPs. The total is the sum over the boards (Laws of Duplicate Bridge, 78B): those of a match, or
// Butler points or cross-IMPs. Cross-IMPs that are computed for boards with different numbers of
// results are divided by the number of comparisons, board by board; others are not. A ruling counts
// only where the file gives points for it.
//
// Points of the file win over computed ones where it gives them for all results of a board. Where
// match points are missing those of the whole board are computed from the scores. Where IMPs are
// missing from a file that gives some the result does not count, since those of the file may be
// against another datum.
//
// Who the contestants are is found out as seating.h says. Where somebody has sat in both directions
// there is one field, else one for each direction.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "formats/results/lin_file.h"
#include "formats/results/seating.h"
#include "formats/results/traveller.h"

namespace tricklet {

/// How the totals of a ranking are counted.
enum class RankingUnit : std::uint8_t { Percentage, Imps, ImpsPerComparison };

/// A pair, player or team and what it has reached.
struct RankedEntrant {
  int place = 0;          ///< 1 for the first; those who are equal share the best of their places
  bool shared = false;    ///< there are others in this place
  std::string number;     ///< as in the file; empty where there is none
  std::string names;      ///< "Ann & Bob", of a team "Ann & Bob, Cy & Di"; empty where not known
  int boards = 0;         ///< that count towards the total, at least 1
  double total = 0;       ///< match points in the scale of the travellers, or IMPs
  double percentage = 0;  ///< of the match points that could be had, 0..100; with IMPs 0

  /// "3", "3=".
  std::string PlaceText() const;
  /// "31.5", "-3": with two decimals at the most, a point whatever the locale.
  std::string TotalText() const;
  /// "54.17": with two decimals.
  std::string PercentageText() const;
};

/// Those who are compared with each other.
struct RankingTable {
  std::string heading;  ///< "North-South", "East-West"; empty where there is one field only
  std::vector<RankedEntrant> entrants;  ///< at least two; the best first, those who are equal in
                                        ///< the order of their numbers
};

struct Ranking {
  RankingUnit unit = RankingUnit::Percentage;
  Contestants contestants = Contestants::Pairs;
  std::vector<RankingTable> tables;  ///< none where nobody can be ranked, two at the most
  /// What could not be ranked and why, a sentence each, for the person. It is fit to be shown, and
  /// never empty where `tables` is.
  std::vector<std::string> notRanked;

  /// The heading of the column that decides: "%", "IMPs", "IMPs per comparison".
  std::string UnitText() const;
};

/// Ranks those who have played `travellers`, each of another board of the session of `file`.
Ranking MakeRanking(const LinFile& file, Travellers travellers);
Ranking MakeRanking(const LinFile& file, const std::vector<Traveller>& travellers);

}  // namespace tricklet
