// Any bytes as a "LIN.txt": what is read is written and read again without change, and each board
// that it holds comes back from its own file.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/text.h"
#include "formats/results/lin_boards.h"
#include "formats/results/lin_file.h"
#include "tests/fuzz/checks.h"

using namespace tricklet;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const LinFile foreign = ParseLinFile({reinterpret_cast<const char*>(data), size});
  const std::string text = LinFileText(foreign);
  if (!IsValidUtf8(text)) std::abort();
  const LinFile own = ParseLinFile(text);
  if (own.lin.size() != foreign.lin.size() || own.names.size() != foreign.names.size() ||
      own.teamEvent.has_value() != foreign.teamEvent.has_value()) {
    std::abort();
  }
  if (!(ParseLinFile(LinFileText(own)) == own)) std::abort();
  fuzz::CheckingSink sink;
  ReadResult result;
  ReadLinCards(own, kFirstBoardNumber, kLastBoardNumber, sink, result);
  return 0;
}
