// What a set of deals looks like beside what is to be expected, as tables of values.
//
// Shapes, points and breaks are expected as `a_priori.h` counts them. What is makeable double-dummy
// cannot be counted, so nothing is expected of it; the points that two hands of a side need for
// games and slams stand beside it, and those can.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "frequencies/ordinariness.h"

namespace tricklet {

struct FrequencyRow {
  std::string name;  ///< "4-4-3-2"
  int observed = 0;
  int of = 0;                      ///< hands, suits or deals in which it could have been
  std::optional<double> expected;  ///< of as many; nothing where that cannot be counted
};

struct FrequencyTable {
  std::string title;  ///< "Shapes"
  std::string unit;   ///< what is counted: "hands"
  std::vector<FrequencyRow> rows;
  std::string verdict;  ///< a sentence; empty where the table has none of its own
};

struct DealFrequencies {
  int deals = 0;
  std::vector<FrequencyTable> tables;
  /// How ordinary all of it is, in a sentence.
  std::string verdict;
};

/// What can be made in deals, from their makeable tables: by either side, double-dummy.
struct MakeableTally {
  int deals = 0;  ///< with a table
  int games = 0;  ///< in which a game can be made; a slam is one too
  int slams = 0;
  int grandSlams = 0;

  /// `table` is possible.
  void Add(const MakeableTable& table);
};

/// "as ordinary as 4 in 10 such sets" of a share in 0..1, "fewer than 1 in 200" of a small one.
std::string ShareText(double share);

DealFrequencies FrequenciesOf(const DealTally& tally, const MakeableTally& makeable,
                              const Ordinariness& ordinary);

}  // namespace tricklet
