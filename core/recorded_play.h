// What a play record tells of one table.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/board.h"
#include "core/holding.h"

namespace tricklet {

/// What a record says of a call beside the call itself.
struct CallRemark {
  bool alerted = false;
  std::string meaning;  ///< UTF-8, one line fit to be shown; empty where the call is not explained

  bool Empty() const { return !alerted && meaning.empty(); }
  friend bool operator==(const CallRemark&, const CallRemark&) = default;
};
/// Of the calls of an auction, in their order. May be shorter than the auction: of the calls beyond
/// it nothing is said.
using CallRemarks = std::vector<CallRemark>;

struct RecordedPlay {
  tricklet::Board board;    ///< deal, calls and contract; not the current board
  std::vector<Card> cards;  ///< in the order in which they were played; not necessarily legal
  /// Declarer's tricks, 0..13; kept beside `cards`, which end where somebody claimed.
  std::optional<int> tricks;
  CallRemarks remarks{};  ///< of the board's calls
};

/// A play as far as it goes by the rules.
struct LegalPlay {
  int cards = 0;  ///< 0..52: those before the first illegal one
  /// Who leads to each trick. The last of them has won the trick before it and leads to the one
  /// that has begun, or would: `cards` / 4 + 1 in all. Empty when there is no contract.
  std::vector<Seat> leaders;
};

/// Follows `cards` up to the first that is not legal.
LegalPlay FollowPlay(const Board& board, std::span<const Card> cards);

/// The tricks of the declaring side, 0..13, when `cards` play `board` to its end: all 52 in an
/// order that is legal. Nothing otherwise.
std::optional<int> DeclarerTricks(const Board& board, std::span<const Card> cards);

}  // namespace tricklet
