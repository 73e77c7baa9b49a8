// Dealing: one deal to constraints, and the completion of a deal at random.
#pragma once

#include <string_view>

#include "core/board.h"
#include "core/random_source.h"
#include "generate/constraints.h"

namespace tricklet {

/// What the person is told when `Random` refuses.
inline constexpr std::string_view kRandomisationError = "error in randomisation";

/// Deals every card that no seat holds to the seats that lack cards, each way equally likely. A
/// full deal stays as it is. False, and nothing dealt, when the free cards and the free places
/// differ in number (a card is held twice, or a seat holds more than 13).
bool Random(HandTable& hands, RandomSource& random);

/// How often a hand is built until it meets the constraints; the last attempt is kept as it is.
inline constexpr int kMaxAttempts = 11;

/// A complete deal to constraints that `CheckConstraints` accepts. Shapes are drawn first, with
/// the weight of a suit being the number of its cards still outside the hand; then the points,
/// by `HcpOdds` within their range; then honours worth as many points, and spot cards. A hand
/// may fail to meet constraints that are hardly ever met, as the attempts are limited.
HandTable GenerateDeal(const Constraints& constraints, Seat dealer, RandomSource& random);

}  // namespace tricklet
