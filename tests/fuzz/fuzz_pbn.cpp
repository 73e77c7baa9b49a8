// Any bytes as a PBN file: nothing but boards, a bad line or a fault may come of them, and every
// board that is stored must come back from its own file as it was.
#include "core/fault.h"
#include "formats/pbn/pbn_reader.h"
#include "tests/fuzz/checks.h"

void tricklet::fuzz::Check(std::string_view bytes) {
  CheckingSink sink;
  try {
    ReadPBN(bytes, sink);
  } catch (const Fault&) {
    // an auction of more than 100 calls
  }
}
