// What the makeable pane shows, as texts.
#pragma once

#include <array>
#include <string>

#include "core/board.h"

namespace tricklet {

struct MakeableView {
  std::string caption;  ///< "Makeable contracts" or "Makeable tricks"
  struct Row {
    std::string seat;                         ///< "North"
    std::array<std::string, kStrains> cells;  ///< spades, hearts, diamonds, clubs, no-trump
  };
  std::array<Row, kSeats> rows;  ///< clockwise from North
};

/// With `contracts` the tricks beyond six, which is the level that can be made, else the tricks;
/// "-" for 0 or less.
MakeableView MakeMakeableView(const MakeableTable& table, bool contracts);

}  // namespace tricklet
