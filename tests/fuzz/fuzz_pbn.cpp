// Any bytes as a PBN file: nothing but boards, a bad line or a fault may come of them, and every
// board that is stored must come back from its own file as it was.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/fault.h"
#include "formats/pbn/pbn_reader.h"
#include "formats/pbn/pbn_writer.h"
#include "tests/fuzz/checks.h"

namespace {

class WritingSink : public tricklet::fuzz::CheckingSink {
 public:
  void Store(const tricklet::Board& board) override {
    CheckingSink::Store(board);
    if (tricklet::PbnRecord(board, "Library", {}).empty()) std::abort();
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  WritingSink sink;
  try {
    tricklet::ReadPBN({reinterpret_cast<const char*>(data), size}, sink);
  } catch (const tricklet::Fault&) {
    // an auction of more than 100 calls
  }
  return 0;
}
