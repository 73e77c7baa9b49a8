// The double-dummy solver library, loaded while the program runs.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include "analysis/solver.h"

namespace tricklet {

/// Looks for the library in this order: the file that the environment variable TRICKLET_SOLVER
/// names; in `programFolder`; where the system finds libraries. Its name is dds.dll on Windows,
/// libdds.so.0 and then libdds.so elsewhere. Never fails: what was tried is in `Missing()`.
std::unique_ptr<Solver> LoadSolver(const std::filesystem::path& programFolder);

/// A function that calls `LoadSolver` when it is first called, from any thread, and gives the same
/// solver from then on: the library takes memory and threads, which most commands do not need.
std::function<Solver&()> SolverOnDemand(const std::filesystem::path& programFolder);

}  // namespace tricklet
