// A plan as it is shown: a line for each board, and for each part that cannot be read.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "formats/look/import_plan.h"

namespace tricklet {

/// All text is UTF-8 and fit to be shown in a line.
struct PlanRow {
  std::string inFile;    ///< the number as the file has it: "4 (Closed)"; empty: it has none
  std::string storedAs;  ///< "37", in a further library "37 in Club-2"; empty: it is not stored
  std::string hand;  ///< the first hand: "♠AK4 ♥T98 ♦- ♣Q765432"; empty where there is none
  std::string what;  ///< what happens: "new", "replaces the board that is there" ...
  bool ordinary = true;  ///< it is stored as the file has it
  bool stored = false;
  std::optional<std::size_t> board;  ///< its position in the plan; nothing for an unread part
  /// The person can leave the board out, or take it back.
  bool optional = false;
};

/// In the order of the file. `libraries`: the names of the libraries that the plan fills, one for
/// each of its parts.
std::vector<PlanRow> PlanRows(const FileContents& contents, const ImportChoices& choices,
                              const ImportPlan& plan, const std::vector<std::string>& libraries);

/// "45 boards found, 44 can be stored, 576 results".
std::string PlanSummary(const FileContents& contents, const ImportPlan& plan);

/// "12 boards from 576 tables"; empty where no board was played more than once.
std::string TablesText(int boards, int tables);

}  // namespace tricklet
