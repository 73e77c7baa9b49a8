// Any bytes as a board file: what is read must be writable, and must come back as it was.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "library/board_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using tricklet::TableReading;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  tricklet::Board basic;
  tricklet::ReadBoardText(text, basic, TableReading::OnlyWhenComplete);
  tricklet::Board board;
  const bool readable = tricklet::ReadBoardText(text, board, TableReading::Always);
  tricklet::Board again;
  if (!tricklet::ReadBoardText(tricklet::WriteBoardText(board), again, TableReading::Always)) {
    std::abort();  // even a board read in part is a board
  }
  if (!(again.hands == board.hands) || !(again.calls == board.calls)) std::abort();
  if (readable && again.makeableValid != board.makeableValid) std::abort();
  return 0;
}
