// The commands for double-dummy tables and the online page.
#pragma once

#include <optional>

#include "cli/context.h"

namespace tricklet::cli {

struct AnalyseArguments {
  std::optional<int> first;  ///< nothing: the whole library
  std::optional<int> last;   ///< nothing: `first` alone
  bool again = false;        ///< boards that have a table too
  bool show = false;         ///< print the tables of the boards afterwards
};

/// Computes tables and stores them with their boards.
ExitCode Analyse(const Context& context, const AnalyseArguments& arguments);

/// Prints the address of the online double-dummy page for the board.
ExitCode Link(const Context& context, int boardNumber);

}  // namespace tricklet::cli
