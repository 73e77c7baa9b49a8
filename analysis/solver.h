// The port to a double-dummy solver.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/board.h"

namespace tricklet {

/// Tricks for solver seat h (N E S W) in solver strain s (spades, hearts, diamonds, clubs,
/// no-trump), at position h * 5 + s.
using SolverRecord = std::array<std::int32_t, static_cast<std::size_t>(kSeats) * kStrains>;

/// A position in mid-play.
struct SolverPosition {
  Strain trumps = Strain::NoTrump;
  Seat leader = Seat::North;  ///< of the current trick
  std::vector<Card> trick;    ///< its cards in order, 0..3
  HandTable cardsLeft;        ///< cards still in the hands
  friend bool operator==(const SolverPosition&, const SolverPosition&) = default;
};

/// Double-dummy tricks of the side on play for one card of the hand on play.
struct CardScore {
  Card card;
  int tricks = 0;  ///< the current trick included, 0..13
};

/// A play, whole or not, of a deal of 13 cards each.
struct SolverPlay {
  Strain trumps = Strain::NoTrump;
  Seat declarer = Seat::North;
  HandTable hands;          ///< before the opening lead
  std::vector<Card> cards;  ///< from the opening lead on, 0..52, all of them legal
  friend bool operator==(const SolverPlay&, const SolverPlay&) = default;
};

/// The tricks, 0..13, that declarer ends with when all play on double-dummy: before the opening
/// lead, and after each card. One more than there are cards.
using PlayTricks = std::vector<int>;

/// All cards of a position, or one that takes as many tricks as any, which is found in less than
/// half the time.
enum class CardsWanted : std::uint8_t { All, OneBest };

class Solver {
 public:
  /// The most deals of one batch.
  static constexpr int kBatch = 32;
  /// The most plays or positions of one batch.
  static constexpr int kPlayBatch = 200;

  Solver() = default;
  Solver(const Solver&) = delete;
  Solver& operator=(const Solver&) = delete;
  virtual ~Solver() = default;

  /// Why there is no solver, for the person; empty when there is one.
  virtual std::string Missing() const = 0;

  /// "2.9.0"; empty when it does not tell, or when there is no solver.
  virtual std::string Version() const { return {}; }

  /// Solves complete deals given as PBN deal texts, at most `kBatch`, on all cores. Returns the
  /// solver's own text of what went wrong, empty on success. May be called from any thread.
  virtual std::string Solve(std::span<const std::string> deals,
                            std::span<SolverRecord> records) = 0;

  /// The tricks that each legal card of the hand on play leads to, in no particular order; empty
  /// when the solver cannot tell. May be called from any thread.
  virtual std::vector<CardScore> SolveCards(const SolverPosition& position) = 0;

  /// The same of at most `kPlayBatch` positions, on all cores: an answer for each, which has the
  /// cards that are wanted at the least. A solver that has no way of its own for several is asked
  /// for one after the other.
  virtual void SolveCardsOfAll(std::span<const SolverPosition> positions, CardsWanted wanted,
                               std::span<std::vector<CardScore>> scores);

  /// What becomes of at most `kPlayBatch` plays, on all cores; one play is solved on one. Returns
  /// the text of what went wrong, empty on success. May be called from any thread. A solver that
  /// has no way of its own for plays is asked for each position.
  virtual std::string SolvePlays(std::span<const SolverPlay> plays, std::span<PlayTricks> tricks);
};

}  // namespace tricklet
