// The solver that a shared library offers.
#pragma once

#include <memory>

#include "analysis/shared_library.h"
#include "analysis/solver.h"

namespace tricklet {

/// Serves one caller at a time, by those calls that the library at hand has. Null when it has none
/// for tables, and so is no solver.
std::unique_ptr<Solver> MakeLibrarySolver(const SharedLibrary& library);

}  // namespace tricklet
