// Any bytes as a DLM file: nothing but boards, a bad line or a fault may come of them, and every
// board that is stored has the letters that it was read from.
#include "core/fault.h"
#include "formats/dlm/dlm_contents.h"
#include "formats/dlm/dlm_deal.h"
#include "formats/dlm/dlm_reader.h"
#include "tests/fuzz/checks.h"

namespace tricklet::fuzz {
namespace {

class LettersSink : public CheckingSink {
 public:
  void Store(const Board& board) override {
    CheckingSink::Store(board);
    const std::string deal = EncodeDLMDeal(board.boardNumber, board.hands);
    Require(DecodeDLMDeal(std::string_view(deal).substr(0, kDLMDealLetters)) == board.hands);
  }
};

}  // namespace

void Check(std::string_view bytes) {
  LettersSink sink;
  try {
    ReadDLM(bytes, sink);
  } catch (const Fault&) {
    // a deal with a bad letter
  }
  CheckPlans(ReadDlmContents(bytes));
}

}  // namespace tricklet::fuzz
