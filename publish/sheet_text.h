// The texts of a board as they stand on paper and in diagrams: short, with suit symbols.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "analysis/par.h"
#include "core/board.h"
#include "core/holding.h"

namespace tricklet {

/// The texts of the ranks from the ace down; none for a void.
std::vector<std::string_view> RanksOf(Holding holding);

/// "N", "E", "S", "W".
std::string_view SeatLetter(Seat seat);

/// "N deals".
std::string DealerText(Seat dealer);

/// What a table of makeable tricks shows for `tricks`: those that make a contract as a number, else
/// a middle dot.
std::string TricksText(int tricks);

/// "NT" or the suit's symbol.
std::string_view StrainSymbol(Strain strain);

/// A contract without its declarer, "4Sx", with the suit as its symbol; "All Pass" as it is.
std::string ContractSymbols(std::string_view contract);

/// Contract, declarer and score, "Par 4♠= N +620", "Par 3NT= NS +600". The side that scores is
/// named when it is not the declarers': "Par 5♣x-2, 5♦x-2 EW, NS +300". "Par All Pass 0".
std::string ParSymbols(const Par& par);

}  // namespace tricklet
