#include "core/scoring.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

namespace tricklet {
namespace {

/// Not vulnerable, vulnerable; each undoubled, doubled, redoubled.
using Row = std::array<int, 6>;

/// By "1m", "3N" and the tricks over book, or by "down" and the undertricks.
using ScoreTable = std::map<std::pair<std::string, int>, Row>;

void ReadTable(const std::string& name, ScoreTable& table) {
  std::ifstream file(std::string(TRICKLET_TEST_DATA) + "/" + name);
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream cells(line);
    std::pair<std::string, int> key;
    cells >> key.first >> key.second;
    for (int& score : table[key]) cells >> score;
    EXPECT_TRUE(cells) << line;
  }
}

TEST(ScoreContract, AgreesWithThePublishedTables) {
  ScoreTable table;
  for (const char* name : {"scores_made.tsv", "scores_defeated.tsv"}) ReadTable(name, table);
  ASSERT_EQ(table.size(), 84U + 13U);
  for (int tricks = 0; tricks <= 13; ++tricks) {
    for (int bid = 0; bid < 35; ++bid) {
      const int level = bid / kStrains + 1;
      const auto strain = static_cast<Strain>(bid % kStrains);
      const int result = tricks - 6 - level;
      const char* kind = strain == Strain::NoTrump ? "N" : strain >= Strain::Diamonds ? "m" : "M";
      const Row& row = result < 0 ? table.at({"down", -result})
                                  : table.at({std::to_string(level) + kind, tricks - 6});
      for (int column = 0; column < 6; ++column) {
        const int expected = row.at(static_cast<std::size_t>(column)) * (result < 0 ? -1 : 1);
        const auto doubling = static_cast<Doubling>(column % 3);
        for (const Seat declarer : {Seat::South, Seat::East}) {
          const auto vulnerable =
              static_cast<Vulnerability>((declarer == Seat::South) == (column < 3) ? 2 : 1);
          EXPECT_EQ(ScoreContract(vulnerable, level, strain, doubling, result, declarer),
                    declarer == Seat::South ? expected : -expected)
              << bid << " " << tricks << " " << column;
        }
      }
    }
  }
}

TEST(ResultLine, NamesTheSideThatScores) {
  const std::tuple<int, const char*, Seat, int, const char*> kCases[] = {
      {1, "3NT", Seat::North, 9, "3NT= by North : NS +400"},
      {1, "4S", Seat::North, 11, "4S+1 by North : NS +450"},
      {3, "4Sx", Seat::East, 8, "4Sx-2 by East : NS +500"},
      {1, "1Cxx", Seat::South, 7, "1Cxx= by South : NS +230"},
      {4, "6NT", Seat::West, 12, "6NT= by West : EW +1440"},
      {4, "2H", Seat::South, 7, "2H-1 by South : EW +100"},
      {4, "All Pass", Seat::South, 0, "All Pass : 0"},
      {4, "", Seat::South, 0, ""},
  };
  for (const auto& [number, contract, declarer, tricks, line] : kCases) {
    Board board;
    board.boardNumber = number;
    if (!SetContract(board, contract)) board.contract = contract;
    board.declarer = declarer;
    EXPECT_EQ(ResultLine(board, tricks), line);
  }
}

}  // namespace
}  // namespace tricklet
