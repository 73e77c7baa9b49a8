// The command that edits the cards of a board.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/context.h"

namespace tricklet::cli {

enum class EditAction : std::uint8_t { Rotate, SwapHands, SwapSuits, Clear, Fill, SetHand };

struct EditArguments {
  int board = 0;
  EditAction action = EditAction::Clear;
  /// Rotate: "cw", "acw" or "half". SwapHands: two seats. SwapSuits: two suits. SetHand: a seat and
  /// its hand, "AKT2.QJ5.-.98".
  std::vector<std::string> words;
  bool takeAuction = false;           ///< Rotate: every player keeps his calls
  bool takeCards = false;             ///< SetHand: also cards that other seats hold
  std::optional<std::uint64_t> seed;  ///< Fill: the same seed deals the same cards
};

/// Edits the stored board, saves it and shows its hands; or refuses with the reason, and the file
/// is as it was.
ExitCode EditBoard(const Context& context, const EditArguments& arguments);

}  // namespace tricklet::cli
