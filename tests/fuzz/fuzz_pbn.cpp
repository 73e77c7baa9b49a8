// Any bytes as a PBN file: nothing but boards, a bad line or a fault may come of them, and every
// board that is stored must come back from its own file as it was.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/fault.h"
#include "formats/pbn/pbn_reader.h"
#include "tests/fuzz/checks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tricklet::fuzz::CheckingSink sink;
  try {
    tricklet::ReadPBN({reinterpret_cast<const char*>(data), size}, sink);
  } catch (const tricklet::Fault&) {
    // an auction of more than 100 calls
  }
  return 0;
}
