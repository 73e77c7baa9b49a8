// A call of the solver library by itself, as the floor of what the program makes of it.
#pragma once

#include <cstdlib>

#include "analysis/shared_library.h"

namespace tricklet::bench {

/// The entry `name` of the library that the program would take; null where none is installed or it
/// has no such call.
template <class Call>
Call* SolverCall(const char* name) {
  const char* named = std::getenv("TRICKLET_SOLVER");
#ifdef _WIN32
  const char* usual = "dds.dll";
#else
  const char* usual = "libdds.so.0";
#endif
  const SharedLibrary library(named != nullptr ? named : usual);
  return library.IsOpen() ? library.Entry<Call>(name) : nullptr;
}

}  // namespace tricklet::bench
