// Finding boards in 200 libraries of 100 boards, each with results and notes, beside reading those
// files by the standard library.
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "bench/measure.h"
#include "bench/random_board.h"
#include "bench/temporary_root.h"
#include "finding/find_boards.h"
#include "finding/read_query.h"
#include "formats/results/lin_file.h"
#include "library/board_file.h"
#include "library/board_notes.h"
#include "library/library_names.h"

namespace tricklet::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kLibraries = 200;
constexpr int kBoardsOfLibrary = 100;
constexpr int kTables = 8;  // of each board

void Write(const fs::path& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

std::string RecordOf(int board, int table) {
  const std::string number = std::to_string(table);
  return "pn|Ann" + number + ",Ed" + number + ",Bob" + number + ",Flo" + number +
         "|md|1SQT62HKQ62DK93CK8,SKJ4HT95DT76CAJ96,SA873HAJ83D52CQ32,|ah|Board " +
         std::to_string(board) + "|mb|1N|mb|p|mb|3N|mb|p|mb|p|mb|p|pc|S4|pc|S3|pc|SQ|pc|S5|" +
         "qent|9|qens|400|\r\n";
}

class Fixture : public TemporaryRoot {
 public:
  Fixture() {
    std::mt19937 random(1);
    for (int library = 0; library < kLibraries; ++library) {
      const fs::path folder = Emptied("Evening " + std::to_string(library));
      std::string results = "[BoardScoringMethod]\r\nMATCH_POINTS\r\n[LIN]\r\n";
      std::string notes;
      for (int number = 1; number <= kBoardsOfLibrary; ++number) {
        Board board = RandomBoard(number, random);
        board.makeableValid = true;
        for (auto& row : board.makeable) {
          for (auto& tricks : row) tricks = static_cast<std::int16_t>(random() % 14);
        }
        Write(folder / BoardFileName(number), WriteBoardText(board));
        for (int table = 1; table <= kTables; ++table) results += RecordOf(number, table);
        if (number % 10 == 0) {
          notes += "[" + std::to_string(number) + "]\r\nPlay on the long suit\r\n";
        }
      }
      Write(folder / kLinFile, results);
      Write(folder / kNotesFile, notes);
    }
  }
};

const Fixture& Libraries() {
  static const Fixture fixture;
  return fixture;
}

/// The folders are listed and each file is read.
void ReadAllFilesFloor(benchmark::State& state) {
  std::size_t bytes = 0;
  Measure(
      state, [] { Libraries(); },
      [&bytes] {
        for (const auto& folder : fs::directory_iterator(Libraries().root)) {
          for (const auto& file : fs::directory_iterator(folder))
            bytes += ReadByStream(file.path());
        }
      });
  benchmark::DoNotOptimize(bytes);
}

/// A condition that about one deal in nine meets, and words that look at players and notes.
void FindInAllLibraries(benchmark::State& state) {
  std::size_t found = 0;
  Measure(
      state, [] { Libraries(); },
      [&found, &state] {
        const QueryOutcome outcome = ReadQuery("hcp(south) > 12 and spades(south) > 4", "flo", {});
        FindSink sink;
        sink.found = [&found](const FoundBoard&) { ++found; };
        sink.broken = [&state](const fs::path&, const std::string& why) {
          state.SkipWithError(why.c_str());
        };
        sink.goOn = [](const FindProgress&) { return true; };
        FindBoards({Libraries().root, FoldersOf(Libraries().root)}, outcome.query.value(), sink);
      });
  if (found == 0) state.SkipWithError("nothing was found");
}

TRICKLET_BENCH_TIMES(ReadAllFilesFloor, 9);
TRICKLET_BENCH_TIMES(FindInAllLibraries, 9);

}  // namespace
}  // namespace tricklet::bench
