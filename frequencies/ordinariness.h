// How ordinary a set of deals is among sets dealt at random.
//
// The measure is Pearson's: over the cells of a table, the squares of observed less expected, each
// divided by what was expected. Cells are joined with the next ones until five or more are expected
// in each.
//
// Its usual distribution is not used, because it wants counts that are independent of each other.
// The four hands of a deal are not (the points of four hands sum up to 40; where one has seven
// spades, the others are short of them), nor are the breaks of its four suits. To count one hand of
// each deal would throw three quarters away and answer for that hand alone. So the measure is held
// against that of sets of the same size that are dealt at random from a fixed seed: the answer for
// a set is always the same, and whatever depends on whatever does so there as well. With a few
// hundred sets or more, the share has a standard error of two or three percent at most.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>

#include "frequencies/deal_tally.h"

namespace tricklet {

enum class Aspect : std::uint8_t { Shapes, Points, Breaks };
inline constexpr int kAspects = 3;
inline constexpr std::array kAllAspects{Aspect::Shapes, Aspect::Points, Aspect::Breaks};

/// How far a tally is from what is expected; nothing for an aspect with fewer than two cells.
struct Deviation {
  double chiSquare = 0;
  int cells = 0;  ///< after small ones have been joined
};
EnumArray<Aspect, std::optional<Deviation>, kAspects> DeviationsOf(const DealTally& tally);

/// The shares of sets dealt at random, in 0..1, that are as far from what is expected as this one
/// or farther: 0.4 is quite ordinary, 0.001 is not.
struct Ordinariness {
  EnumArray<Aspect, std::optional<double>, kAspects> share;
  /// The three aspects together, each weighed by its mean among the sets dealt at random.
  std::optional<double> together;
  int sets = 0;  ///< sets that were dealt to tell
};

/// Deals some 400,000 deals: takes less than a second. Nothing is set for fewer than five deals,
/// nor when `goOn`, which is asked between the sets, says no.
Ordinariness OrdinarinessOf(const DealTally& tally, const std::function<bool()>& goOn = {});

}  // namespace tricklet
