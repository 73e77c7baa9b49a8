#include "frequencies/deal_tally.h"

#include <algorithm>

namespace tricklet {
namespace {

/// Ace 4, king 3, queen 2, jack 1: bits 0 to 3 of a holding.
constexpr std::array<int, 16> kHonourPoints = [] {
  std::array<int, 16> points{};
  for (unsigned bits = 0; bits < points.size(); ++bits) {
    for (unsigned rank = 0; rank < 4; ++rank) {
      if ((bits >> rank & 1U) != 0) points.at(bits) += 4 - static_cast<int>(rank);
    }
  }
  return points;
}();

int PointsOf(const PerSuit<Holding>& hand) {
  int points = 0;
  for (const Holding holding : hand) points += kHonourPoints.at(holding.Bits() & 0xFU);
  return points;
}

constexpr std::size_t Place(int count) {
  return static_cast<std::size_t>(count);
}

}  // namespace

void DealTally::Add(const HandTable& hands) {
  ++deals;
  PerSide<int> sidePoints;
  for (const Seat seat : kAllSeats) {
    Shape lengths{};
    for (const Suit suit : kAllSuits) {
      lengths.at(static_cast<std::size_t>(suit)) = hands[seat][suit].Count();
    }
    ++shapes.at(Place(ShapeIndex(lengths)));
    const int hand = PointsOf(hands[seat]);
    ++points.at(Place(hand));
    sidePoints[SideOf(seat)] += hand;
  }
  ++pairPoints.at(Place(std::max(sidePoints[Side::NorthSouth], sidePoints[Side::EastWest])));
  for (const Suit suit : kAllSuits) {
    const int north = hands[Seat::North][suit].Count();
    const int south = hands[Seat::South][suit].Count();
    const int east = hands[Seat::East][suit].Count();
    const int west = hands[Seat::West][suit].Count();
    const bool northSouth = north + south > east + west;
    const int missing = northSouth ? east + west : north + south;
    const int longer = northSouth ? std::max(east, west) : std::max(north, south);
    ++breaks.at(Place(missing)).at(Place(longer));
  }
}

}  // namespace tricklet
