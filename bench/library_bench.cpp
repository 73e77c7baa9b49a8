// A library of 999 boards: importing, exporting and opening it, each beside the least that the disk
// has to do for it.
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "bench/measure.h"
#include "bench/quiet_host.h"
#include "bench/random_board.h"
#include "bench/temporary_root.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "formats/exchange/export.h"
#include "formats/exchange/import.h"
#include "formats/pbn/pbn_writer.h"
#include "library/board_file.h"
#include "library/board_store.h"
#include "library/library_choice.h"

namespace tricklet::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kBoards = kLastBoardNumber;

/// A random deal with an auction and a table.
Board FullBoard(int number, std::mt19937& random) {
  Board board = RandomBoard(number, random);
  board.makeableValid = true;
  for (auto& row : board.makeable) {
    for (auto& tricks : row) tricks = static_cast<std::int16_t>(random() % 14);
  }
  return board;
}

/// A root with the library "Full" of 999 boards, an empty one, and the PBN file of those boards.
class Fixture : public TemporaryRoot {
 public:
  Fixture() {
    std::mt19937 random(1);
    std::string pbn = "% PBN 2.1\r\n";
    fs::create_directories(root / "Full");
    UnflushedFolders unflushed;
    for (int number = 1; number <= kBoards; ++number) {
      const Board board = FullBoard(number, random);
      texts.push_back(WriteBoardText(board));
      pbn += PbnRecord(board, "Full", {}) + "\r\n";
      ReplaceWholeFile(root / "Full" / BoardFileName(number), texts.back(), unflushed);
    }
    ReplaceWholeFile(root / "boards.pbn", pbn);
  }

  std::vector<std::string> texts;
};

const Fixture& Boards() {
  static const Fixture fixture;
  return fixture;
}

Session MakeSession(Host& host, SettingsStore& store, const std::string& library) {
  Session session(host, store);
  session.settings.filelocation = FolderText(Boards().root);
  session.settings.library = library;
  return session;
}

void WriteFilesFloor(benchmark::State& state) {
  fs::path folder;
  Measure(
      state, [&folder] { folder = Boards().Emptied("Empty"); },
      [&folder] { WriteLasting(folder, Boards().texts); });
}

void ImportBoards(benchmark::State& state) {
  QuietHost host;
  MemoryStore store;
  Session session = MakeSession(host, store, "Empty");
  int saved = 0;
  Measure(
      state, [] { Boards().Emptied("Empty"); },
      [&] { saved = ImportFile(session, Boards().root / "boards.pbn").boardsSaved; });
  if (saved != kBoards) state.SkipWithError("not all boards came in");
}

std::size_t ListFull() {
  std::size_t found = 0;
  for (const auto& entry : fs::directory_iterator(Boards().root / "Full")) {
    found += entry.path().native().size();
  }
  return found;
}

/// One board written, and the library listed again.
void SaveFloor(benchmark::State& state) {
  fs::path folder;
  std::size_t found = 0;
  Measure(
      state, [&folder] { folder = Boards().Emptied("Empty"); },
      [&] {
        WriteLasting(folder, {Boards().texts.front()});
        found += ListFull();
      });
  benchmark::DoNotOptimize(found);
}

void SaveBoard(benchmark::State& state) {
  QuietHost host;
  MemoryStore store;
  Session session = MakeSession(host, store, "Full");
  bool saved = true;
  Measure(
      state,
      [&session] {
        session.board.boardNumber = kFirstBoardNumber;
        LoadHand(session);
        session.board.handChanged = true;
      },
      [&] { saved = saved && SaveHand(session); });
  if (!saved) state.SkipWithError("the board was not saved");
}

void ReadFilesFloor(benchmark::State& state) {
  std::size_t bytes = 0;
  Measure(
      state, [] {},
      [&bytes] {
        for (int number = 1; number <= kBoards; ++number) {
          std::ifstream file(Boards().root / "Full" / BoardFileName(number), std::ios::binary);
          std::array<char, 4096> buffer{};
          file.read(buffer.data(), buffer.size());
          bytes += static_cast<std::size_t>(file.gcount());
        }
      });
  benchmark::DoNotOptimize(bytes);
}

void ExportBoards(benchmark::State& state) {
  QuietHost host;
  MemoryStore store;
  Session session = MakeSession(host, store, "Full");
  bool written = false;
  Measure(
      state, [] {},
      [&] {
        written = ExportFile(session, {1, kBoards, "pbn"}, Boards().root / "out.pbn");
      });
  if (!written) state.SkipWithError("the boards were not written");
}

void OpenFloor(benchmark::State& state) {
  std::size_t found = 0;
  Measure(
      state, [] {},
      [&found] {
        found += ListFull();
        found += ReadWholeFile(Boards().root / "Full" / "001.txt", kMaxBoardFileBytes).size();
      });
  benchmark::DoNotOptimize(found);
}

void OpenLibrary(benchmark::State& state) {
  QuietHost host;
  MemoryStore store;
  Session session = MakeSession(host, store, "Full");
  GetLibraryNames(session);
  Measure(
      state, [] {}, [&session] { SelectLibrary(session, "Full"); });
  if (session.library.boardCount != kBoards) state.SkipWithError("not all boards were found");
}

TRICKLET_BENCH(WriteFilesFloor);
TRICKLET_BENCH(ImportBoards);
TRICKLET_BENCH(SaveFloor);
TRICKLET_BENCH(SaveBoard);
TRICKLET_BENCH(ReadFilesFloor);
TRICKLET_BENCH(ExportBoards);
TRICKLET_BENCH(OpenFloor);
TRICKLET_BENCH(OpenLibrary);

}  // namespace
}  // namespace tricklet::bench
