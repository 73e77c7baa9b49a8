// DLM and LIN files of 99 boards: importing them, beside reading the file and writing the boards.
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "bench/measure.h"
#include "bench/quiet_host.h"
#include "core/text.h"
#include "formats/dlm_writer.h"
#include "formats/import_lin.h"
#include "formats/lin_writer.h"
#include "generate/deal.h"
#include "library/board_file.h"
#include "library/file_io.h"

namespace tricklet::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kBoards = kLastDLMBoard;

/// A root with an empty library, and the same 99 boards as a DLM and as a LIN file.
class Fixture {
 public:
  Fixture() : root(fs::temp_directory_path() / ("tricklet-records-" + std::to_string(Seed()))) {
    RandomSource random{1};
    std::string dlm = DLMHeader(kFirstBoardNumber, kBoards);
    std::string lin;
    fs::create_directories(root);
    for (int number = kFirstBoardNumber; number <= kBoards; ++number) {
      Board board;
      board.BoardNumber = number;
      Random(board.Hands, random);
      texts.push_back(WriteBoardText(board));
      dlm += DLMBoardHead(number) + DLMBoardLine(number, board.Hands);
      lin += LinRecordLine(board);
    }
    ReplaceWholeFile(root / "boards.dlm", dlm + DLMFooter());
    ReplaceWholeFile(root / "boards.lin", lin);
  }
  ~Fixture() {
    std::error_code ignored;
    fs::remove_all(root, ignored);
  }
  Fixture(const Fixture&) = delete;
  Fixture& operator=(const Fixture&) = delete;

  /// The library, made anew.
  fs::path Emptied() const {
    fs::remove_all(root / "Empty");
    fs::create_directories(root / "Empty");
    return root / "Empty";
  }

  fs::path root;
  std::vector<std::string> texts;

 private:
  static unsigned Seed() { return std::random_device()(); }
};

const Fixture& Records() {
  static const Fixture fixture;
  return fixture;
}

void Floor(benchmark::State& state, const char* name) {
  fs::path folder;
  std::size_t bytes = 0;
  Measure(
      state, [&folder] { folder = Records().Emptied(); },
      [&] {
        std::ifstream file(Records().root / name, std::ios::binary);
        std::string text(fs::file_size(Records().root / name), '\0');
        file.read(text.data(), static_cast<std::streamsize>(text.size()));
        bytes += text.size();
        for (int number = kFirstBoardNumber; number <= kBoards; ++number) {
          const fs::path path = folder / BoardFileName(number);
          fs::path beside = path;
          beside += ".new";
          std::ofstream(beside, std::ios::binary)
              << Records().texts.at(static_cast<std::size_t>(number - 1));
          fs::rename(beside, path);
        }
      });
  benchmark::DoNotOptimize(bytes);
}

void Import(benchmark::State& state, const char* name) {
  QuietHost host;
  MemoryStore store;
  Session session(host, store);
  session.settings.filelocation = FolderText(Records().root);
  session.settings.library = "Empty";
  int saved = 0;
  Measure(
      state, [] { Records().Emptied(); },
      [&] { saved = ImportAnyFile(session, Records().root / name).boardsSaved; });
  if (saved != kBoards) state.SkipWithError("not all boards came in");
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
