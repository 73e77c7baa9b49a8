// What a person types to find boards, as a question to each of them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "finding/found_board.h"
#include "library/board_find.h"

namespace tricklet {

/// Whether a complete deal is among those that are looked for.
using DealTest = std::function<bool(const HandTable&)>;

/// A board is found when each of the words fits it, and its deal the condition.
///
/// A word that `BoardQuery` knows whole means what it says there: "7", "5-12", "north", "4s",
/// "slam". "played" and "unplayed" ask for results of the library. Any other word, one cut short
/// ("sl") among them, also fits where a player's name or the board's note has it, in any letter
/// case. "par" asks for the word after it in the board's par: "par 4s", "par ew", "par 420".
class FindQuery {
 public:
  FindQuery() = default;
  /// `condition` may be empty.
  explicit FindQuery(std::string_view words, DealTest condition = {});

  /// Every board is found.
  bool Empty() const { return words_.empty() && !condition_; }
  /// `FoundBoard::players` is looked at.
  bool AsksForPlayers() const { return asksForPlayers_; }
  /// `FoundBoard::par` is looked at.
  bool AsksForPar() const { return asksForPar_; }
  /// Whether the condition is met, by an incomplete deal only where there is none.
  bool Accepts(const HandTable& hands) const;
  /// Whether each of the words fits.
  bool Matches(const FoundBoard& board) const;

 private:
  using Test = std::function<bool(const FoundBoard&)>;
  Test TestOf(std::string_view word);

  std::vector<Test> words_;
  DealTest condition_;
  bool asksForPlayers_ = false;
  bool asksForPar_ = false;
};

/// The text is a condition rather than words: it has a bracket, a comparison, "&&", "||" or "!".
bool ReadsAsCondition(std::string_view text);

}  // namespace tricklet
