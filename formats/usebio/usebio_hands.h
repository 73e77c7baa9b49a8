// The deal of a board of a results file, from its four hands.
#pragma once

#include <string>

#include <pugixml.hpp>

#include "core/board.h"

namespace tricklet {

struct UsebioHands {
  bool given = false;        ///< the board has a hand
  HandTable hands;           ///< not always 13 cards a hand
  bool repeatsCard = false;  ///< a hand gives a card twice, which `hands` does not show
  std::string fault;         ///< why the hands cannot be read; empty where they can
  std::string text;          ///< where they cannot, what stands there
};

/// Reads the HAND elements right inside `board`: the seat by its name or its letter, a holding by
/// its rank letters in any order and letter case, the ten as "T" or "10", a void as nothing, "-" or
/// "void". What is neither is a fault of the whole deal. Throws nothing.
UsebioHands ReadUsebioHands(const pugi::xml_node& board);

}  // namespace tricklet
