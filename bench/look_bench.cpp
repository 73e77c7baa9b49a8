// Imports with a look at the file first: of a file that loses nothing, beside the same import
// without a look; and of a season of a club, beside reading the file and writing the boards.
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "bench/import_measure.h"
#include "bench/random_board.h"
#include "disk/file_io.h"
#include "formats/pbn/pbn_writer.h"
#include "library/board_file.h"

namespace tricklet::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kClubBoards = 159;
constexpr int kClubTables = 24;  // 3,816 games

std::string ResultTags(int table) {
  const std::string pair = std::to_string(table);
  return "[West \"West " + pair + "\"]\r\n[North \"North " + pair + "\"]\r\n[East \"East " + pair +
         "\"]\r\n[South \"South " + pair +
         "\"]\r\n[Scoring \"MP\"]\r\n[Declarer \"N\"]\r\n[Contract \"3NT\"]\r\n[Result \"" +
         std::to_string(5 + table % 9) + "\"]\r\n";
}

/// 999 boards without results, and a file of a club's games.
class Fixture : public TemporaryRoot {
 public:
  Fixture() {
    std::mt19937 random(1);
    std::string clean = "% PBN 2.1\r\n";
    for (int number = kFirstBoardNumber; number <= kLastBoardNumber; ++number) {
      clean += PbnRecord(RandomBoard(number, random), "Full", {}) + "\r\n";
    }
    ReplaceWholeFile(root / "clean.pbn", clean);
    std::string club = "% PBN 2.1\r\n";
    for (int number = kFirstBoardNumber; number <= kClubBoards; ++number) {
      const Board board = RandomBoard(number, random);
      texts.push_back(WriteBoardText(board));
      for (int table = 1; table <= kClubTables; ++table) {
        club += PbnRecord(board, "Club", {}) + ResultTags(table) + "\r\n";
      }
    }
    ReplaceWholeFile(root / "club.pbn", club);
  }

  std::vector<std::string> texts;  // of the club's boards
};

const Fixture& Files() {
  static const Fixture fixture;
  return fixture;
}

void ImportCleanBoards(benchmark::State& state) {
  MeasureImport(state, Files(), Files().root / "clean.pbn", kLastBoardNumber);
}

/// The file is looked at, and nobody has to decide.
void LookAndImportCleanBoards(benchmark::State& state) {
  Looker looker;
  looker.decide = [&state](const ImportLook&) -> std::optional<ImportChoices> {
    state.SkipWithError("a clean file is said to lose something");
    return std::nullopt;
  };
  MeasureImport(state, Files(), Files().root / "clean.pbn", kLastBoardNumber, looker);
}

void ReadClubFloor(benchmark::State& state) {
  MeasureImportFloor(state, Files(), Files().root / "club.pbn", Files().texts);
}

void LookAndImportClub(benchmark::State& state) {
  Looker looker;
  looker.decide = [](const ImportLook& look) { return look.choices; };
  MeasureImport(state, Files(), Files().root / "club.pbn", kClubBoards, looker);
}

TRICKLET_BENCH(ImportCleanBoards);
TRICKLET_BENCH(LookAndImportCleanBoards);
TRICKLET_BENCH(ReadClubFloor);
TRICKLET_BENCH(LookAndImportClub);

}  // namespace
}  // namespace tricklet::bench
