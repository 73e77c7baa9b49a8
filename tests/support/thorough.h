// How often tests at random are repeated.
#pragma once

#include <cstdlib>

namespace tricklet::test {

/// `all` where the environment variable TRICKLET_THOROUGH is set, as in CI; else a tenth of it.
inline int Repetitions(int all) {
  static const bool thorough = std::getenv("TRICKLET_THOROUGH") != nullptr;
  return thorough ? all : all / 10;
}

}  // namespace tricklet::test
