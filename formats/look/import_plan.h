// What storing a file would do, board by board, before anything is stored.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "formats/contents/contents.h"
#include "formats/look/import_choices.h"

namespace tricklet {

/// What happens to a deal of the file. The first three are stored.
enum class Fate : std::uint8_t {
  Stored,      ///< under its own number
  Moved,       ///< under another number than its own
  Numbered,    ///< it had no number, or none that a library can hold
  Replaced,    ///< a later deal of the file takes its number
  Repeated,    ///< an earlier deal of the file has its number
  NoNumber,    ///< it has no number that a library can hold
  Impossible,  ///< no such deal exists, and there are no results of it to be kept
  Outside,     ///< the file says that it does not belong to it
  Empty,       ///< neither cards nor results
  AfterFault,  ///< a part of the file that cannot be read comes before it
  Unwanted     ///< the person left it out
};
constexpr bool IsStored(Fate fate) {
  return fate <= Fate::Numbered;
}

/// One deal, with all records of the file that have it under its number.
struct PlannedBoard {
  std::vector<std::size_t> games;  ///< positions in the section, in order; at least one
  Fate fate = Fate::Stored;
  int part = 0;           ///< where it is stored: 0 the library itself, 1 "Name-2", 2 "Name-3" ...
  int number = 0;         ///< under which it is stored, 1..999; 0 when it is not
  bool replaces = false;  ///< the library has a board of that number
  bool repeats = false;   ///< an earlier deal of the file, which is another one, has its number
  bool otherDealer = false;  ///< file and own number differ in the dealer or the vulnerability
};

struct ImportPlan {
  std::vector<PlannedBoard> boards;  ///< in the order of their first records
  int stored = 0;                    ///< boards that are stored
  int tables = 0;                    ///< results that come with them
  int parts = 0;                     ///< libraries that they fill
};

/// The board of a game as a library stores it under `boardNumber`. An impossible deal is left out,
/// so that only the results remain.
Board StorableBoard(const FoundGame& game, int boardNumber);

/// By board number: the library has the board. Nothing for a new library.
using BoardsThere = std::array<bool, kLastBoardNumber + 1>;

/// The plan for one section of `contents`; `choices.section` is one of its sections, or it has
/// none. Equal hands under one number are one board. Deals that get the next free number take the
/// first one after the highest of the file that neither the file nor the library has, and that goes
/// with their dealer and vulnerability where `DealerBy::File` asks for it; one that has a number
/// but another dealer takes the first after its own.
ImportPlan PlanImport(const FileContents& contents, const ImportChoices& choices,
                      const BoardsThere& there);

}  // namespace tricklet
