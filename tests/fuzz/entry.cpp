// What libFuzzer calls, for every target.
#include <cstddef>
#include <cstdint>

#include "tests/fuzz/checks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tricklet::fuzz::Check({reinterpret_cast<const char*>(data), size});
  return 0;
}
