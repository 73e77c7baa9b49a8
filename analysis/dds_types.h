// The records that cross the border to the double-dummy solver library. Their shapes are those of
// its published interface (version 2.9); the names of the fields are ours.
#pragma once

#include <array>
#include <cstdint>

namespace tricklet::dds {

inline constexpr int kDealTextSize = 80;  ///< of a deal text, the terminating zero included

/// A PBN deal text, the rest of the buffer zero.
struct DealText {
  std::array<char, kDealTextSize> cards;
};

/// Tricks by strain (spades, hearts, diamonds, clubs, no-trump) and seat (N E S W).
struct TableByStrain {
  std::array<std::array<std::int32_t, 4>, 5> tricks;
};

/// The library's largest batch has 40 tables of five strains.
inline constexpr int kTableSlots = 200;

struct DealBatch {
  std::int32_t count;
  std::array<DealText, kTableSlots> deals;
};

struct TableBatch {
  std::int32_t strainsSolved;
  std::array<TableByStrain, kTableSlots> tables;
};

/// Room for par results that are not asked for.
struct ParBatch {
  std::array<std::array<char, 2 * 16 + 2 * 128>, 40> results;
};

/// A position in mid-play: the cards of the current trick, in order, and those left in the hands.
struct Position {
  std::int32_t trump;  ///< 0 spades .. 3 clubs, 4 no-trump
  std::int32_t first;  ///< seat that led to the current trick, N E S W
  std::array<std::int32_t, 3> trickSuit;
  std::array<std::int32_t, 3> trickRank;  ///< 2..14; 0 where no card lies
  DealText cardsLeft;
};

/// What each card of the hand on play leads to.
struct CardTricks {
  std::int32_t nodes;
  std::int32_t count;
  std::array<std::int32_t, 13> suit;
  std::array<std::int32_t, 13> rank;    ///< 2..14
  std::array<std::int32_t, 13> equals;  ///< lower cards worth the same: bit r for rank r
  std::array<std::int32_t, 13> tricks;  ///< of the side on play, the current trick included
};

/// A deal before the opening lead, or a position.
struct BinaryDeal {
  std::int32_t trump;
  std::int32_t first;
  std::array<std::int32_t, 3> trickSuit;
  std::array<std::int32_t, 3> trickRank;
  /// By seat and suit: bit r for rank r, 2..14.
  std::array<std::array<std::uint32_t, 4>, 4> cardsLeft;
};

/// The cards of a play in their order.
struct PlayedCards {
  std::int32_t count;
  std::array<std::int32_t, 52> suit;
  std::array<std::int32_t, 52> rank;  ///< 2..14
};

/// What declarer ends with before the first card of a play and after each; not after those of the
/// last trick.
struct PlayOutcome {
  std::int32_t count;
  std::array<std::int32_t, 53> tricks;
};

inline constexpr int kPlaySlots = 200;

struct PlayDeals {
  std::int32_t count;
  std::array<BinaryDeal, kPlaySlots> deals;
  // How a single position would be searched; plays are not searched so.
  std::array<std::int32_t, kPlaySlots> target;
  std::array<std::int32_t, kPlaySlots> solutions;
  std::array<std::int32_t, kPlaySlots> mode;
};

struct PlayBatch {
  std::int32_t count;
  std::array<PlayedCards, kPlaySlots> plays;
};

struct PlayOutcomes {
  std::int32_t count;
  std::array<PlayOutcome, kPlaySlots> outcomes;
};

struct PositionBatch {
  std::int32_t count;
  std::array<Position, kPlaySlots> positions;
  std::array<std::int32_t, kPlaySlots> target;  ///< of each, as for a single position
  std::array<std::int32_t, kPlaySlots> solutions;
  std::array<std::int32_t, kPlaySlots> mode;
};

struct CardTricksBatch {
  std::int32_t count;
  std::array<CardTricks, kPlaySlots> cards;
};

/// What the library tells of itself: its version, and then under 1400 bytes about the machine.
struct LibraryInfo {
  std::int32_t major;
  std::int32_t minor;
  std::int32_t patch;
  std::array<char, 4096> machine;
};

inline constexpr int kNoFault = 1;  ///< status of success

}  // namespace tricklet::dds
