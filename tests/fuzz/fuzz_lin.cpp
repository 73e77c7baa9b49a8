// Any bytes as a LIN file: nothing but boards may come of them; a board that is stored can be
// written to its file and comes back, and its record for "LIN.txt" names it.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "core/fault.h"
#include "formats/lin/lin_reader.h"
#include "formats/lin/lin_record.h"
#include "tests/fuzz/checks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  tricklet::fuzz::CheckingSink sink;
  std::vector<std::string> records;
  tricklet::ReadLIN(text, sink, records);
  for (const std::string& record : records) {
    const tricklet::LinRecord parsed = tricklet::ParseLinRecord(record);
    if (!tricklet::IsStorable(parsed.boardNumber) || !parsed.hasDeal) std::abort();
  }
  try {
    tricklet::ParseLinRecord(tricklet::ReadLinData(text));
  } catch (const tricklet::Fault&) {
    // a broken escape
  }
  return 0;
}
