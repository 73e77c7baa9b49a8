// The command line as a whole, apart from the process it runs in.
#pragma once

#include <atomic>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "analysis/solver.h"
#include "core/settings.h"

namespace tricklet::cli {

/// What the command line needs of its process.
struct Console {
  std::istream& in;
  std::ostream& data;      ///< standard output
  std::ostream& messages;  ///< standard error
  bool terminal = false;   ///< a person reads the messages and types the answers
  const std::atomic<bool>& interrupted;
  /// The double-dummy solver, asked for when it is first needed; empty: none.
  std::function<Solver&()> solver;
};

/// Carries out one command line (without the program's name). Returns the exit code: 0 done,
/// 1 refused or failed, 2 usage.
int Run(const std::vector<std::string>& arguments, SettingsStore& store, const Console& console);

}  // namespace tricklet::cli
