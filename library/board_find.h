// Which boards of a list a person is looking for.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "library/board_summary.h"

namespace tricklet {

/// Words separated by blanks, in any letter case; a board is found when each of them fits it:
///
///   "7", "5-12", "30-"           the board's number
///   "n", "south"                 the dealer
///   "none", "ns", "ew", "all"    who is vulnerable
///   "4s", "3nt", "2hx"           the contract; without "x" whether or not it is doubled
///   "spades", "nt"               its strain
///   "part", "game", "slam"       what it is worth; a slam is a game too
///   "doubled", "redoubled"       what became of it
///   "bid", "passed"              there is a contract or the board was passed out; only the latter
///   "played", "unplayed"         it has a result, or not
///   "empty", "dealt"             it has no cards, or some
///   "changed"                    it has changes that are not saved
///
/// Words may be cut short: "sl" is "slam". A word that is none of these fits no board.
class BoardQuery {
 public:
  BoardQuery() = default;
  explicit BoardQuery(std::string_view text);

  /// There is no word, and every board is found.
  bool Empty() const { return words_.empty(); }
  bool Matches(const ListedBoard& board) const;

  /// A word is one of the above and not cut short.
  static bool Knows(std::string_view word);

 private:
  using Test = std::function<bool(const ListedBoard&)>;
  static Test TestOf(std::string_view word);

  std::vector<Test> words_;
};

}  // namespace tricklet
