// How the results of a PBN file are scored, and who played.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "formats/pbn/pbn_games.h"
#include "formats/pbn/pbn_results.h"
#include "formats/results/lin_file.h"

namespace tricklet {

/// What the games of a file say of the event.
class PbnEvent {
 public:
  void Add(const PbnGame& game);

  /// Scoring and teams. The points that the file gives decide; where it gives none, or both kinds,
  /// the first Scoring tag does; and without one, teams have IMPs and pairs match points.
  LinFile Results(const PbnPoints& points) const;

 private:
  std::string MethodOf(const PbnPoints& points) const;

  std::string scoring_;  // in upper case
  std::vector<std::string> teams_;
  std::set<std::string> known_;  // of `teams_`
  bool pairs_ = false;           // "Pairs", or a table of results
};

}  // namespace tricklet
