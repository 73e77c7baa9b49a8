// A board of a library with everything that a search looks at and a list of boards shows.
#pragma once

#include <optional>
#include <string>

#include "analysis/par.h"
#include "library/board_summary.h"

namespace tricklet {

struct FoundBoard {
  std::string library;
  ListedBoard listed;  ///< with its summary, which is readable
  HandTable hands;
  bool complete = false;   ///< four hands of thirteen cards
  std::optional<Par> par;  ///< nothing without a makeable table of a complete deal
  PerSeat<int> points;     ///< high-card points of the cards that the seats hold
  int tables = 0;          ///< records of the board in "LIN.txt"
  std::string players;     ///< those of all its tables, with line ends between; empty if not asked
  std::string note;        ///< what "Notes.txt" says of it
};

}  // namespace tricklet
