// The pairs of a session by their players, from the names in "LIN.txt".
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/notation.h"

namespace tricklet {

/// The players of a pair, in either order.
using PairPlayers = std::pair<std::string, std::string>;

/// The name under which a player is shown: the robot of an online table as "Robot", and any other
/// made fit to be shown.
std::string PlayerName(std::string_view name);

/// "Ann & Bob"; a name alone where the other is not known.
std::string JoinPlayers(const PairPlayers& players);

class PairNames {
 public:
  /// `lines`: "1 NS Ann & Bob". A pair need not have a direction; lines that cannot be read are
  /// passed over.
  explicit PairNames(const std::vector<std::string>& lines);

  /// The number of the pair of these players on `side`; empty when it is not known, or when several
  /// pairs have these names.
  std::string NumberOf(const PairPlayers& players, Side side) const;

 private:
  /// Of the pair of these players on one side.
  struct Number {
    std::string text;  // empty when several pairs have these names
    bool known = false;
  };

  std::map<PairPlayers, PerSide<Number>> numbers_;  // by the players in one order and letter case
};

}  // namespace tricklet
