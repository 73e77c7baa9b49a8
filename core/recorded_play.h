// What a play record tells of one table.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "core/board.h"
#include "core/holding.h"

namespace tricklet {

struct RecordedPlay {
  tricklet::Board board;    ///< deal, calls and contract; not the current board
  std::vector<Card> cards;  ///< in the order in which they were played; not necessarily legal
  /// Declarer's tricks, 0..13; kept beside `cards`, which end where somebody claimed.
  std::optional<int> tricks;
};

/// The tricks of the declaring side, 0..13, when `cards` play `board` to its end: all 52 in an
/// order that is legal. Nothing otherwise.
std::optional<int> DeclarerTricks(const Board& board, std::span<const Card> cards);

}  // namespace tricklet
