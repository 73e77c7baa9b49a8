// The commands for the auction, the play and the score.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/context.h"

namespace tricklet::cli {

/// Shows the auction; with calls, replaces it by them and saves the board, or refuses with the
/// reason and changes nothing.
ExitCode Auction(const Context& context, int boardNumber, const std::vector<std::string>& calls);

struct PlayArguments {
  int board = 0;
  std::vector<std::string> cards;    ///< "SA", "H10" or "HT", in any letter case
  int undo = 0;                      ///< cards to take back afterwards
  std::optional<std::string> claim;  ///< the seat on play that claims the rest
};

/// Plays the cards from the opening lead and shows the table after them. Nothing is saved.
ExitCode Play(const Context& context, const PlayArguments& arguments);

struct ScoreArguments {
  std::string contract;       ///< "4S", "3NTx", "1Cxx"
  std::string declarer;       ///< first letter of the seat
  int tricks = 0;             ///< 0..13
  int board = 1;              ///< gives the vulnerability, unless `vulnerability` does
  std::string vulnerability;  ///< "none", "ns", "ew", "all"; empty: the board's
};

ExitCode Score(const Context& context, const ScoreArguments& arguments);

}  // namespace tricklet::cli
