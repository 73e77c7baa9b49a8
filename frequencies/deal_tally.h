// Deals counted by what their hands look like.
#pragma once

#include <array>

#include "core/board.h"
#include "frequencies/a_priori.h"

namespace tricklet {

/// How often each thing occurred among complete deals.
struct DealTally {
  int deals = 0;
  std::array<int, kShapes> shapes{};                ///< hands, in the order of `AllShapes`
  std::array<int, kMostPointsOfHand + 1> points{};  ///< hands, by their high-card points
  /// Suits of a deal, of which one side always has seven or more: by the cards that it lacks and
  /// the most of them that lie in one hand.
  std::array<std::array<int, kMostMissing + 1>, kMostMissing + 1> breaks{};
  std::array<int, 41> pairPoints{};  ///< deals, by the points of the side with more; 20..40

  /// `hands` is a complete deal.
  void Add(const HandTable& hands);
};

}  // namespace tricklet
