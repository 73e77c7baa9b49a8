// A traveller line of a results file as a line of "LIN.txt".
#pragma once

#include <string>

#include <pugixml.hpp>

#include "formats/pair_names.h"

namespace tricklet {

/// The LIN record of the element "TRAVELLER_LINE", decoded, with the scorer's own tags behind it.
/// The first board that it names is `boardNumber`; players that the record lacks are those of the
/// line's pairs. Throws `Fault` for a percent escape that is cut short, and `UsebioRefusal`.
std::string LinLine(const pugi::xml_node& travellerLine, int boardNumber, const PairNames& pairs);

}  // namespace tricklet
