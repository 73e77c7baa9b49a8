// Who has played in a session, so that a reader can look for the own results.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/notation.h"
#include "publish/published.h"
#include "publish/web/shown_names.h"

namespace tricklet {

/// A pair as it is published.
struct WebPair {
  std::string number;  ///< as in the file; empty where there is none
  std::string names;   ///< empty where not known or not published
};

/// Somebody whom a reader can choose: a pair, or a player who had several partners.
struct WebEntrant {
  std::string label;       ///< "3 Anna & Bo", "Pair 3", "3 NS A.B. & C.D.", "Anna"; not empty
  std::vector<int> pairs;  ///< positions in `Entrants::Pairs`, ascending
};

/// Pairs are told apart by their players, or by number and direction where no player is known.
class Entrants {
 public:
  Entrants(const Published& published, NamesShown names);

  const std::vector<WebPair>& Pairs() const { return pairs_; }
  /// Pairs in the order of their numbers, then of their names; then players.
  const std::vector<WebEntrant>& List() const { return list_; }
  /// The position in `Pairs` of those on `side` of the row, which is of the session; -1 when
  /// nothing is known or published of them.
  int PairOf(const TravellerRow& row, Side side) const;
  /// The position in `List` of the player of this name, or of the pair with this number and the
  /// names as they are in the file, or else with this number; -1 when there is none, or several.
  int EntrantOf(const std::string& number, const std::string& fullNames) const;

 private:
  /// What is known of a pair while the rows are read.
  struct Seen {
    std::string number;
    std::string fullNames;
    PerSide<bool> sides;
    std::pair<std::string, std::string> players;
    int entrant = -1;
  };

  void Add(const TravellerRow& row, Side side, NamesShown names);
  void ListPairs();
  void ListPlayers(NamesShown names);
  std::string DirectionOf(const Seen& seen) const;

  std::map<std::string, int> positions_;  // in `pairs_`, by what tells pairs apart
  std::vector<Seen> seen_;                // as `pairs_`
  std::vector<WebPair> pairs_;
  std::vector<WebEntrant> list_;
  std::map<std::string, int> players_;  // in `list_`, by the full name
};

}  // namespace tricklet
