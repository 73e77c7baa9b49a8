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

/// The name that all robots of online tables share.
inline constexpr std::string_view kRobot = "Robot";

/// The name under which a player is shown: the robot of an online table as `kRobot`, and any other
/// made fit for display.
std::string PlayerName(std::string_view name);

/// "Ann & Bob"; a name alone where the other is not known.
std::string JoinPlayers(const PairPlayers& players);

class PairNames {
 public:
  /// `lines`: "1 NS Ann & Bob". A pair need not have a direction; lines that cannot be read are
  /// passed over.
  explicit PairNames(const std::vector<std::string>& lines);

  /// The number of the pair of these players on `side`; empty when it is not known, or when several
  /// pairs have these names. Commas and bars in names, which a LIN record cannot hold, do not
  /// matter.
  std::string NumberOf(const PairPlayers& players, Side side) const;

  /// The players of the pair that sits on `side` under `number`, in the order of its line; nobody
  /// when it is not known. Where both directions have numbers of their own that is the side's pair,
  /// else the one of that number, which may have changed sides. "9NS" is pair 9 of North-South.
  PairPlayers PlayersOf(std::string_view number, Side side) const;

 private:
  void Add(const std::string& number, std::string direction, const PairPlayers& players);

  /// The number of a pair on one side.
  struct Number {
    std::string text;  // empty when several pairs have these names
    bool known = false;
  };

  /// The pairs of one number.
  struct Seated {
    PerSide<PairPlayers> onSide;
    PairPlayers anywhere;
  };

  std::map<PairPlayers, PerSide<Number>> numbers_;  // by the players in one order and letter case
  std::map<std::string, Seated> seated_;            // by the number without a direction in it
};

}  // namespace tricklet
