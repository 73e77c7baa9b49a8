// Deals as text for the solver and for addresses.
#pragma once

#include <string>

#include "core/board.h"

namespace tricklet {

/// One hand: its four holdings in PBN form with "." between; adds its cards to `cardCount`.
std::string HandDealText(const PerSuit<Holding>& hand, int& cardCount);

/// "N:" and the hands North, East, South, West with blanks between.
std::string SolverDealText(const HandTable& hands);

}  // namespace tricklet
