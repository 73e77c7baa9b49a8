// Any bytes as a DLM file: nothing but boards, a bad line or a fault may come of them, and every
// board that is stored has the letters that it was read from.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/fault.h"
#include "formats/dlm/dlm_deal.h"
#include "formats/dlm/dlm_reader.h"
#include "tests/fuzz/checks.h"

namespace {

class LettersSink : public tricklet::fuzz::CheckingSink {
 public:
  void Store(const tricklet::Board& board) override {
    CheckingSink::Store(board);
    const std::string deal = tricklet::EncodeDLMDeal(board.boardNumber, board.hands);
    const std::string_view letters = std::string_view(deal).substr(0, tricklet::kDLMDealLetters);
    if (!(tricklet::DecodeDLMDeal(letters) == board.hands)) std::abort();
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  LettersSink sink;
  try {
    tricklet::ReadDLM({reinterpret_cast<const char*>(data), size}, sink);
  } catch (const tricklet::Fault&) {
    // a deal with a bad letter
  }
  return 0;
}
