// The pairs and players of a PBN file, from its TotalScoreTable.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/notation.h"
#include "formats/pbn/pbn_games.h"
#include "formats/results/pair_names.h"

namespace tricklet {

/// The players of a pair's names: "Ann;Bob", "Ann - Bob", "Ann & Bob", "Ann/Bob". A name alone is
/// that of the first.
PairPlayers PbnPlayers(std::string_view names);

class PbnPairs {
 public:
  /// Adds the pairs of the game's table; of several with one number and direction the first counts.
  void Add(const PbnGame& game);

  /// "3 Ann & Bob" for each pair in the order of the file, with a direction, "3 NS Ann & Bob",
  /// where pairs of both directions share a number.
  std::vector<std::string> Lines() const;

  /// The player of an individual by the number; empty when it is not known.
  std::string PlayerOf(const std::string& number) const;

 private:
  struct Pair {
    std::string number;
    std::string direction;  // "NS", "EW", or empty
    PairPlayers players;
  };
  std::vector<Pair> pairs_;
  std::map<std::string, std::set<std::string>> directions_;  // that a number has
  std::map<std::string, std::string> players_;               // by their numbers
};

}  // namespace tricklet
