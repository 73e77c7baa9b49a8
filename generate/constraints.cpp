#include "generate/constraints.h"

#include <algorithm>

namespace tricklet {
namespace {

/// Most points that 0..4 cards of one suit hold.
constexpr std::array kMostPointsOfCards{0, 4, 7, 9, 10};

/// Points of two hands cannot exceed those of the pack.
constexpr int kPointsInPack = 40;

int MostPoints(const PerSuit<Limits>& suits) {
  int points = 0;
  for (const Limits& suit : suits) {
    points += kMostPointsOfCards.at(static_cast<std::size_t>(std::clamp(suit.maximum, 0, 4)));
  }
  return points;
}

std::optional<std::string> CheckHand(const Constraints& constraints, GenHand hand) {
  const std::string number = std::to_string(IndexOf(hand) + 1);
  const PerSuit<Limits>& suits = constraints.SuitLimits[hand];
  int minima = 0;
  int maxima = 0;
  for (const Limits& suit : suits) {
    minima += suit.minimum;
    maxima += suit.maximum;
  }
  if (minima > kCardsInHand) return "Suit minima add up to more than 13 in hand " + number;
  if (maxima < kCardsInHand) return "Suit maxima add up to less than 13 in hand " + number;
  const int points = constraints.PointLimits[hand].minimum;
  if (points > MostPoints(suits)) {
    return "Cannot have " + std::to_string(points) + " points with the distribution for hand " +
           number;
  }
  return std::nullopt;
}

std::optional<std::string> CheckBothHands(const Constraints& constraints) {
  const auto& points = constraints.PointLimits;
  if (points[GenHand::First].minimum + points[GenHand::Second].minimum > kPointsInPack) {
    return "Too many minimum points between the 2 hands";
  }
  const auto& suits = constraints.SuitLimits;
  for (const Suit suit : kAllSuits) {
    if (suits[GenHand::First][suit].minimum + suits[GenHand::Second][suit].minimum > kRanks) {
      return "Too many " + std::string(SuitName[suit]) + " between the 2 hands";
    }
  }
  if (constraints.HandDirection[GenHand::First] == constraints.HandDirection[GenHand::Second]) {
    return "Hand 2 is the same direction as hand 1";
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> CheckConstraints(const Constraints& constraints) {
  for (const GenHand hand : kGenHands) {
    if (IndexOf(hand) >= constraints.NumGenHands) break;
    if (auto problem = CheckHand(constraints, hand)) return problem;
  }
  return constraints.NumGenHands == 2 ? CheckBothHands(constraints) : std::nullopt;
}

Seat SeatOf(const Constraints& constraints, GenHand hand, Seat dealer) {
  const Seat base = constraints.RelativeToDealer ? dealer : Seat::North;
  return SeatAfter(base, constraints.HandDirection[hand]);
}

}  // namespace tricklet
