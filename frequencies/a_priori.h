// What is to be expected of deals before a card is seen, by counting: each way of dealing the pack
// is equally likely. All counts are integers below 2^53, so the chances are exact but for the
// rounding of one division.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "core/notation.h"

namespace tricklet {

/// n over k; 0 where k is not 0..n. `n` is 0..52.
std::int64_t Ways(int n, int k);

/// The lengths of the four suits of a hand, the longest first: {4, 4, 3, 2}.
using Shape = std::array<int, kSuits>;

/// All 39 of them, the most frequent first.
inline constexpr int kShapes = 39;
std::span<const Shape, kShapes> AllShapes();

/// The position in `AllShapes` of a hand with these lengths, in any order; they sum up to 13.
int ShapeIndex(Shape lengths);

/// How likely a hand has this shape, in whichever suits.
double ChanceOfShape(const Shape& shape);

/// Most high-card points of one hand (AKQJ AKQ AKQ AKQ).
inline constexpr int kMostPointsOfHand = 37;

/// How likely `cards` cards of the pack (13, or 26 for two hands) hold exactly `points` high-card
/// points, 0..40: those with a aces, k kings, q queens and j jacks number
/// C(4,a) C(4,k) C(4,q) C(4,j) C(36,cards-a-k-q-j), out of C(52,cards).
double ChanceOfPoints(int points, int cards = kCardsInHand);

/// The most cards of a suit that the side with more of them lacks.
inline constexpr int kMostMissing = 6;

/// How likely `missing` cards of a suit lie `longer` in one opponent's hand and the rest in the
/// other's, whichever of them it is, when nothing is known but the 26 cards of one side.
/// `longer` is at least half of `missing`.
double ChanceOfBreak(int missing, int longer);

}  // namespace tricklet
