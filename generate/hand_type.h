// The suit lengths of the named hand types.
#pragma once

#include "core/random_source.h"
#include "generate/constraints.h"

namespace tricklet {

/// Cards of a weak two's long suit.
inline constexpr int kWeakTwoLength = 6;
/// Fewest cards of a pre-empt's long suit.
inline constexpr int kShortestPreempt = 7;
/// How often a hand has a suit of 7..13 cards, in percent of all hands. By counting:
/// 4 C(13,n) C(39,13-n) / C(52,13), as only one suit can be that long.
inline constexpr std::array<double, 7> kPreemptOdds{3.52664,    0.466761,   0.0370445,  0.00164642,
                                                    3.64074e-5, 3.19363e-7, 6.29908e-10};

/// Draws the lengths of a hand of this type, anew at every call: the least and the most cards of
/// each suit. `firstLengths` are those of the hand already built, 0 when there is none: a pre-empt
/// is not made in a suit of which that hand holds more than six.
PerSuit<Limits> ChooseHandType(HandType type, int option, const PerSuit<int>& firstLengths,
                               RandomSource& random);

/// A hand with these lengths is one that `ChooseHandType` asks for with this type and option.
bool IsOfType(HandType type, int option, const PerSuit<int>& lengths);

}  // namespace tricklet
