#include "core/scoring.h"

#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace tricklet {
namespace {

constexpr int kColumns = 6;  // not vulnerable, vulnerable; each undoubled, doubled, redoubled

/// Rows of a table of the data folder: the cells before the last six joined, then the six scores.
std::map<std::string, std::array<int, kColumns>> ReadTable(const std::string& name) {
  std::map<std::string, std::array<int, kColumns>> rows;
  std::ifstream file(std::string(TRICKLET_TEST_DATA) + "/" + name);
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream cells(line);
    std::vector<std::string> words;
    for (std::string word; cells >> word;) words.push_back(word);
    std::string key;
    for (std::size_t i = 0; i + kColumns < words.size(); ++i) key += words[i] + " ";
    for (int i = 0; i < kColumns; ++i) {
      rows[key].at(static_cast<std::size_t>(i)) =
          std::stoi(words.at(words.size() - kColumns + static_cast<std::size_t>(i)));
    }
  }
  return rows;
}

/// The score of the declaring side by the wording of law 77, clause by clause.
int ByTheLaw(int level, Strain strain, int doubling, int tricks, bool vulnerable) {
  const int over = tricks - 6 - level;
  if (over < 0) {
    int penalty = 0;
    for (int down = 1; down <= -over; ++down) {
      if (doubling == 0) penalty += vulnerable ? 100 : 50;
      if (doubling > 0) {
        int step = down == 1 ? 100 : down <= 3 ? 200 : 300;
        if (vulnerable) step = down == 1 ? 200 : 300;
        penalty += step * doubling;
      }
    }
    return -penalty;
  }
  const bool minor = strain == Strain::Clubs || strain == Strain::Diamonds;
  int trickScore = 0;
  for (int trick = 1; trick <= level; ++trick) {
    int value = minor ? 20 : 30;
    if (strain == Strain::NoTrump && trick == 1) value = 40;
    if (doubling == 1) value *= 2;
    if (doubling == 2) value *= 4;
    trickScore += value;
  }
  int premium = trickScore < 100 ? 50 : vulnerable ? 500 : 300;
  if (level == 6) premium += vulnerable ? 750 : 500;
  if (level == 7) premium += vulnerable ? 1500 : 1000;
  if (doubling == 1) premium += 50;
  if (doubling == 2) premium += 100;
  int each = minor ? 20 : 30;
  if (doubling == 1) each = vulnerable ? 200 : 100;
  if (doubling == 2) each = vulnerable ? 400 : 200;
  return trickScore + premium + over * each;
}

TEST(ScoreContract, AgreesWithTheLawAndThePublishedTables) {
  const auto made = ReadTable("scores_made.tsv");
  const auto defeated = ReadTable("scores_defeated.tsv");
  ASSERT_EQ(made.size(), 84U);
  ASSERT_EQ(defeated.size(), 13U);
  int compared = 0;
  for (int level = 1; level <= 7; ++level) {
    for (const Strain strain :
         {Strain::Spades, Strain::Hearts, Strain::Diamonds, Strain::Clubs, Strain::NoTrump}) {
      for (int column = 0; column < kColumns; ++column) {
        const bool vulnerable = column >= 3;
        const int doubling = column % 3;
        for (int tricks = 0; tricks <= 13; ++tricks) {
          const int result = tricks - 6 - level;
          const auto score = [&](Seat declarer, Vulnerability vul) {
            return ScoreContract(vul, level, strain, static_cast<Doubling>(doubling), result,
                                 declarer);
          };
          const int ours =
              score(Seat::South, vulnerable ? Vulnerability::NorthSouth : Vulnerability::EastWest);
          ASSERT_EQ(ours, ByTheLaw(level, strain, doubling, tricks, vulnerable))
              << level << " strain " << IndexOf(strain) << " column " << column << " " << tricks;
          EXPECT_EQ(
              score(Seat::East, vulnerable ? Vulnerability::EastWest : Vulnerability::NorthSouth),
              -ours);
          const bool minor = strain == Strain::Clubs || strain == Strain::Diamonds;
          const std::string kind = strain == Strain::NoTrump ? "N " : minor ? "m " : "M ";
          const auto& row =
              result < 0 ? defeated.at(std::to_string(-result) + " ")
                         : made.at(std::to_string(level) + kind + std::to_string(tricks - 6) + " ");
          EXPECT_EQ(std::abs(ours), row.at(static_cast<std::size_t>(column)));
          ++compared;
        }
      }
    }
  }
  EXPECT_EQ(compared, 7 * 5 * 6 * 14);
}

TEST(ResultLine, NamesTheSideThatScores) {
  const struct {
    int board;
    const char* contract;
    int level;
    Strain trumps;
    Seat declarer;
    int tricks;
    const char* line;
  } kCases[] = {
      {1, "3NT", 3, Strain::NoTrump, Seat::North, 9, "3NT= by North : NS +400"},
      {1, "4S", 4, Strain::Spades, Seat::North, 11, "4S+1 by North : NS +450"},
      {3, "4Sx", 4, Strain::Spades, Seat::East, 8, "4Sx-2 by East : NS +500"},
      {1, "1Cxx", 1, Strain::Clubs, Seat::South, 7, "1Cxx= by South : NS +230"},
      {4, "6NT", 6, Strain::NoTrump, Seat::West, 12, "6NT= by West : EW +1440"},
      {4, "2H", 2, Strain::Hearts, Seat::South, 7, "2H-1 by South : EW +100"},
      {4, "All Pass", 0, Strain::NoTrump, Seat::South, 0, "All Pass : 0"},
      {4, "", 0, Strain::NoTrump, Seat::South, 0, ""},
  };
  for (const auto& c : kCases) {
    Board board;
    board.boardNumber = c.board;
    board.contract = c.contract;
    board.contractLevel = c.level;
    board.trumps = c.trumps;
    board.declarer = c.declarer;
    EXPECT_EQ(ResultLine(board, c.tricks), c.line);
  }
}

}  // namespace
}  // namespace tricklet
