// Any bytes as a PBN file: nothing but boards, a bad line or a fault may come of them, and every
// board that is stored must come back from its own file as it was.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/fault.h"
#include "formats/pbn_reader.h"
#include "formats/pbn_writer.h"
#include "library/board_file.h"

namespace {

class CheckingSink : public tricklet::BoardSink {
 public:
  void Store(const tricklet::Board& board) override {
    if (!tricklet::IsStorable(board.BoardNumber)) std::abort();
    tricklet::Board read;
    read.BoardNumber = board.BoardNumber;
    const std::string text = tricklet::WriteBoardText(board);
    if (!tricklet::ReadBoardText(text, read, tricklet::TableReading::Always)) std::abort();
    if (!(read.Calls == board.Calls) || read.Contract != board.Contract) std::abort();
    if (tricklet::PbnRecord(board, "Library", {}).empty()) std::abort();
  }
  bool Begin(int /*boardNumber*/, int /*done*/, int /*total*/) override { return true; }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  CheckingSink sink;
  try {
    tricklet::ReadPBN({reinterpret_cast<const char*>(data), size}, sink);
  } catch (const tricklet::Fault&) {
    // an auction of more than 100 calls
  }
  return 0;
}
