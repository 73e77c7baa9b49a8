// DLM and LIN files of 99 boards: importing them, beside reading the file and writing the boards.
#include <filesystem>
#include <string>
#include <vector>

#include "bench/import_measure.h"
#include "disk/file_io.h"
#include "formats/dlm/dlm_writer.h"
#include "formats/lin/lin_writer.h"
#include "generate/deal.h"
#include "library/board_file.h"

namespace tricklet::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kBoards = kLastDLMBoard;

/// A root with an empty library, and the same 99 boards as a DLM and as a LIN file.
class Fixture : public TemporaryRoot {
 public:
  Fixture() {
    RandomSource random{1};
    std::string dlm = DLMHeader(kFirstBoardNumber, kBoards);
    std::string lin;
    for (int number = kFirstBoardNumber; number <= kBoards; ++number) {
      Board board;
      board.boardNumber = number;
      Random(board.hands, random);
      texts.push_back(WriteBoardText(board));
      dlm += DLMBoardHead(number) + DLMBoardLine(number, board.hands);
      lin += LinRecordLine(board);
    }
    ReplaceWholeFile(root / "boards.dlm", dlm + DLMFooter());
    ReplaceWholeFile(root / "boards.lin", lin);
  }

  std::vector<std::string> texts;
};

const Fixture& Records() {
  static const Fixture fixture;
  return fixture;
}

void Floor(benchmark::State& state, const char* name) {
  MeasureImportFloor(state, Records(), Records().root / name, Records().texts);
}

void Import(benchmark::State& state, const char* name) {
  MeasureImport(state, Records(), Records().root / name, Records().texts.size());
}

void ReadDlmFloor(benchmark::State& state) {
  Floor(state, "boards.dlm");
}
void ImportDlm(benchmark::State& state) {
  Import(state, "boards.dlm");
}
void ReadLinFloor(benchmark::State& state) {
  Floor(state, "boards.lin");
}
void ImportLinRecords(benchmark::State& state) {
  Import(state, "boards.lin");
}

TRICKLET_BENCH(ReadDlmFloor);
TRICKLET_BENCH(ImportDlm);
TRICKLET_BENCH(ReadLinFloor);
TRICKLET_BENCH(ImportLinRecords);

}  // namespace
}  // namespace tricklet::bench
