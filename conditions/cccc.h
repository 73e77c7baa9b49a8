// The evaluator "Four Cs" of Edgar Kaplan (The Bridge World, October 1982), in hundredths of a
// point.
#pragma once

#include "core/board.h"

namespace tricklet {

/// What the honours and spot cards of a suit are worth by its length.
int SuitQuality(Holding holding);

/// What the honours of a suit are worth for tricks, whatever its length beyond three cards.
int HonourStrength(Holding holding);

/// What the lengths of a hand are worth; `lengths` add up to 13.
int ShapeStrength(const PerSuit<int>& lengths);

/// The strength of a hand of 13 cards: the sum of the above. An opening bid has about 1200.
int HandStrength(const PerSuit<Holding>& hand);

}  // namespace tricklet
