// The results of all boards at a glance, for a list of boards.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/call.h"
#include "formats/results/lin_file.h"

namespace tricklet {

/// What came of a board at one table.
struct TableResult {
  CallList calls;            ///< the auction; none where the record has none
  std::optional<int> score;  ///< from North-South's point of view
  std::string adjusted;      ///< the score's text where it is a ruling: "A5050"
};

/// By board number, the results of its tables in the order of the file; at most `kMaxTravellerRows`
/// each. Tables without a result are left out.
using ResultsByBoard = std::map<int, std::vector<TableResult>>;
ResultsByBoard ResultsOf(const LinFile& file);

/// The result that can stand beside a board whose auction is `calls`: that of the only table, or of
/// the tables with this auction where they all have the same. Nothing where it cannot be told.
const TableResult* ResultOf(const ResultsByBoard& results, int boardNumber, const CallList& calls);

}  // namespace tricklet
