// The double-dummy solver library, loaded while the program runs.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include "analysis/solver.h"

namespace tricklet {

/// Loads the file that the environment variable TRICKLET_SOLVER names, and no other when it is set.
/// Else looks in `programFolder` and then where the system keeps libraries, but not in the current
/// folder, for dds.dll on Windows, libdds.so.0 and then libdds.so elsewhere. Never fails: what was
/// tried, and why it is none, is in `Missing()`.
std::unique_ptr<Solver> LoadSolver(const std::filesystem::path& programFolder);

/// A function that calls `LoadSolver` when it is first called, from any thread, and gives the same
/// solver from then on: the library takes memory and threads, which most commands do not need.
std::function<Solver&()> SolverOnDemand(const std::filesystem::path& programFolder);

}  // namespace tricklet
