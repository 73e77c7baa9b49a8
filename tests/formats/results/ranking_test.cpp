// Rankings out of a library's results.
#include "formats/results/ranking.h"

#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/words.h"

namespace tricklet::test {
namespace {

/// A record from "Ann/Bob-Cy/Di 420 ns=2 ew=0 imps=3": who sits North-South and East-West, the
/// score, and the file's points as far as it has any.
std::string Record(int board, const std::string& row) {
  const auto words = Words(row);
  const std::string& pairs = words.at(0);
  const auto dash = pairs.find('-');
  const auto player = [](const std::string& pair, bool second) {
    const auto slash = pair.find('/');
    if (slash == std::string::npos) return second ? std::string() : pair;
    return second ? pair.substr(slash + 1) : pair.substr(0, slash);
  };
  const std::string ns = pairs.substr(0, dash);
  const std::string ew = pairs.substr(dash + 1);
  std::string text = "qx||pn|" + player(ns, true) + "," + player(ew, true) + "," +
                     player(ns, false) + "," + player(ew, false) + "|ah|Board " +
                     std::to_string(board) + "|qens|" + words.at(1) + "|";
  for (std::size_t i = 2; i < words.size(); ++i) {
    const auto equals = words[i].find('=');
    const std::string name = words[i].substr(0, equals);
    const std::string tag = name == "ns" ? "qenns" : name == "ew" ? "qenew" : "qeni";
    text += "|" + tag + "|" + words[i].substr(equals + 1) + "|";
  }
  return text;
}

std::vector<std::string> Parts(const std::string& text, char divider) {
  std::vector<std::string> parts;
  std::istringstream stream(text);
  for (std::string part; std::getline(stream, part, divider);) parts.push_back(part);
  return parts;
}

/// Boards 1, 2 ... divided by ";", the rows of each by ",". "teams IMPS" is an event of teams.
LinFile FileOf(const std::string& method, const std::string& names, const std::string& boards) {
  LinFile file;
  const auto words = Words(method);
  file.boardScoringMethod = words.back();
  if (words.size() > 1) file.teamEvent.emplace();
  file.names = Parts(names, ',');
  int number = 0;
  for (const std::string& board : Parts(boards, ';')) {
    ++number;
    for (const std::string& row : Parts(board, ',')) file.lin.push_back(Record(number, row));
  }
  return file;
}

/// "North-South: 1 Ann & Bob 4/2 66.67, ..." for each table: place, number and names, total,
/// boards, and in match points the percentage; then the sentences in parentheses.
std::string RankingText(const LinFile& file) {
  const Ranking ranking = MakeRanking(file, MakeTravellers(file));
  std::string text;
  for (const RankingTable& table : ranking.tables) {
    text += (text.empty() ? "" : " ") + table.heading + (table.heading.empty() ? "" : ":");
    for (const RankedEntrant& one : table.entrants) {
      text += (text.empty() ? "" : " ") + one.PlaceText() + " ";
      if (!one.number.empty()) text += "#" + one.number + " ";
      text += one.names + (one.names.empty() ? "" : " ") + one.TotalText() + "/" +
              std::to_string(one.boards);
      if (ranking.unit == RankingUnit::Percentage) text += " " + one.PercentageText();
      text += ",";
    }
  }
  if (ranking.unit == RankingUnit::ImpsPerComparison) text += " per comparison";
  for (const std::string& sentence : ranking.notRanked) {
    text += (text.empty() ? "(" : " (") + sentence + ")";
  }
  return text;
}

struct Case {
  const char* what;
  const char* method;
  const char* names;
  const char* boards;
  const char* ranking;
};

void Check(const std::vector<Case>& cases) {
  for (const Case& c : cases) {
    EXPECT_EQ(RankingText(FileOf(c.method, c.names, c.boards)), c.ranking) << c.what;
  }
}

TEST(Ranking, ComparesThoseWhoSitInTheSameDirection) {
  Check({
      {"numbers of their own", "MATCH_POINTS", "1 NS A & B,2 EW C & D,3 NS E & F,4 EW G & H",
       "A/B-C/D 420,E/F-G/H 170;A/B-G/H -50,E/F-C/D -50",
       "North-South: 1 #1 A & B 3/2 75.00, 2 #3 E & F 1/2 25.00, "
       "East-West: 1 #4 G & H 3/2 75.00, 2 #2 C & D 1/2 25.00,"},
      {"the same numbers", "MATCH_POINTS", "1 NS A & B,1 EW C & D,2 NS E & F,2 EW G & H",
       "A/B-C/D 420,E/F-G/H 170",
       "North-South: 1 #1 A & B 2/1 100.00, 2 #2 E & F 0/1 0.00, "
       "East-West: 1 #2 G & H 2/1 100.00, 2 #1 C & D 0/1 0.00,"},
      {"pairs that change direction", "MATCH_POINTS", "10 A & B,2 C & D,3 E & F,4 G & H",
       "A/B-C/D 420,E/F-G/H 420;C/D-A/B 100,E/F-G/H 50",
       "1= #2 C & D 3/2 75.00, 1= #4 G & H 3/2 75.00, "
       "3= #3 E & F 1/2 25.00, 3= #10 A & B 1/2 25.00,"},
      {"numbers that are known in one direction", "MATCH_POINTS", "1 NS A & B,2 EW C & D",
       "A/B-C/D 420,E/F-G/H 420;C/D-A/B 100,E/F-G/H 50",
       "1= G & H 3/2 75.00, 1= #2 C & D 3/2 75.00, 3= E & F 1/2 25.00, 3= #1 A & B 1/2 25.00,"},
      {"names alone, in either order", "MATCH_POINTS", "",
       "Ann/Bob-Cy/Di 420,Eve/Flo-Gus/Hal 170;Cy/Di-bob/ann 90,Eve/Flo-Gus/Hal 90",
       "1= Ann & Bob 3/2 75.00, 1= Gus & Hal 3/2 75.00, "
       "3= Cy & Di 1/2 25.00, 3= Eve & Flo 1/2 25.00,"},
      {"numbers alone, one field", "MATCH_POINTS", "", "1-2 420,3-4 170;2-3 50,1-4 50",
       "1= #1 3/2 75.00, 1= #4 3/2 75.00, 3= #2 1/2 25.00, 3= #3 1/2 25.00,"},
      {"numbers alone, two fields", "MATCH_POINTS", "", "1-1 420,2-2 170;1-2 50,2-1 50",
       "North-South: 1 #1 3/2 75.00, 2 #2 1/2 25.00, East-West: 1 #2 3/2 75.00, 2 #1 1/2 25.00,"},
      {"players", "MATCH_POINTS", "", "A/B-C/D 420,E/F-G/H 170;A/C-B/E 420,D/G-F/H 170",
       "1= A 4/2 100.00, 1= H 4/2 100.00, 3= B 2/2 50.00, 3= C 2/2 50.00, 3= F 2/2 50.00, "
       "3= G 2/2 50.00, 7= D 0/2 0.00, 7= E 0/2 0.00,"},
  });
}

TEST(Ranking, CountsMatchPointsByTheTopOfEachBoard) {
  Check({
      {"boards with different numbers of results", "MATCH_POINTS", "",
       "A/B-C/D 420,E/F-G/H 170,I/J-K/L 100;A/B-G/H 50,E/F-C/D 0",
       "North-South: 1 A & B 6/2 100.00, 2 E & F 2/2 25.00, 3 I & J 0/1 0.00, "
       "East-West: 1 K & L 4/1 100.00, 2 C & D 2/2 50.00, 3 G & H 2/2 25.00,"},
      {"a ruling", "MATCH_POINTS", "", "A/B-C/D 420,E/F-G/H 170,I/J-K/L A6040",
       "North-South: 1 A & B 2/1 100.00, 2 I & J 1.2/1 60.00, 3 E & F 0/1 0.00, "
       "East-West: 1 G & H 2/1 100.00, 2 K & L 0.8/1 40.00, 3 C & D 0/1 0.00,"},
      {"points of the file", "MATCH_POINTS", "",
       "A/B-C/D 420 ns=0 ew=1,E/F-G/H 170 ns=1 ew=0,I/J-K/L A6040,M/N-O/P A ns=0.5 ew=0.5",
       "North-South: 1 E & F 1/1 100.00, 2 I & J 0.6/1 60.00, 3 M & N 0.5/1 50.00, "
       "4 A & B 0/1 0.00, East-West: 1 C & D 1/1 100.00, 2 O & P 0.5/1 50.00, "
       "3 K & L 0.4/1 40.00, 4 G & H 0/1 0.00,"},
      {"points of the file, rulings alone", "MATCH_POINTS", "",
       "A/B-C/D A6040 ns=6 ew=4,E/F-G/H A5050 ns=5 ew=5",
       "North-South: 1 A & B 6/1 60.00, 2 E & F 5/1 50.00, "
       "East-West: 1 G & H 5/1 50.00, 2 C & D 4/1 40.00,"},
      {"points of the file that are not all", "MATCH_POINTS", "",
       "A/B-C/D 420 ns=1 ew=9,E/F-G/H 170",
       "North-South: 1 A & B 2/1 100.00, 2 E & F 0/1 0.00, "
       "East-West: 1 G & H 2/1 100.00, 2 C & D 0/1 0.00,"},
      {"points of the file that cannot be", "MATCH_POINTS", "",
       "A/B-C/D 420 ns=0 ew=1,E/F-G/H 170 ns=1 ew=0,I/J-K/L 90 ns=9 ew=-8",
       "North-South: 1 A & B 4/1 100.00, 2 E & F 2/1 50.00, 3 I & J 0/1 0.00, "
       "East-West: 1 K & L 4/1 100.00, 2 G & H 2/1 50.00, 3 C & D 0/1 0.00,"},
      {"decimals that single precision does not have", "MATCH_POINTS", "",
       "A/B-C/D 1 ns=3.3 ew=6.7,E/F-G/H 2 ns=5 ew=5;A/B-C/D 2 ns=6.7 ew=3.3,E/F-G/H 2 ns=5 ew=5",
       "North-South: 1= A & B 10/2 50.00, 1= E & F 10/2 50.00, "
       "East-West: 1= C & D 10/2 50.00, 1= G & H 10/2 50.00,"},
  });
}

TEST(Ranking, AddsImps) {
  Check({
      {"cross-IMPs", "CROSS_IMPS", "", "A/B-C/D 620,E/F-G/H 600,I/J-K/L -100",
       "North-South: 1 A & B 13/1, 2 E & F 11/1, 3 I & J -24/1, "
       "East-West: 1 K & L 24/1, 2 G & H -11/1, 3 C & D -13/1,"},
      {"cross-IMPs of unequal boards", "CROSS_IMPS", "",
       "A/B-C/D 620,E/F-G/H 600,I/J-K/L -100;A/B-G/H 420,E/F-C/D -50",
       "North-South: 1 A & B 16.5/2, 2 E & F -4.5/2, 3 I & J -12/1, "
       "East-West: 1 K & L 12/1, 2 C & D 3.5/2, 3 G & H -15.5/2, per comparison"},
      {"Butler points, a flat board and one that has none", "BUTLER_IMPS", "",
       "A/B-C/D 420 imps=4,E/F-G/H 50 imps=-4;A/B-C/D 110 imps=0,E/F-G/H 140 imps=0;"
       "A/B-C/D 420 imps=0,E/F-G/H -50 imps=0",
       "North-South: 1 A & B 4/2, 2 E & F -4/2, East-West: 1 G & H 4/2, 2 C & D -4/2, "
       "(Board 3 does not count: it has no IMPs)"},
      {"pairs, whose file calls them IMPs", "IMPS", "",
       "A/B-C/D 420 imps=3,E/F-G/H 50 imps=-3,I/J-K/L A6040",
       "North-South: 1 A & B 3/1, 2 E & F -3/1, East-West: 1 G & H 3/1, 2 C & D -3/1, "
       "(Results without points do not count (board 1))"},
  });
}

TEST(Ranking, FindsTeamsByTheirTables) {
  const char* const kUnknown =
      "(The teams cannot be ranked: it is not known which tables belong together)";
  Check({
      {"a match", "IMPS", "", "A/B-C/D 420,E/F-G/H -50;C/D-A/B 50,G/H-E/F 50",
       "1 A & B, G & H 10/2, 2 C & D, E & F -10/2,"},
      {"numbers of teams", "teams IMPS", "1 NS A & B,2 EW C & D,2 NS E & F,1 EW G & H",
       "A/B-C/D 420,E/F-G/H -50", "1 A & B, G & H 10/1, 2 C & D, E & F -10/1,"},
      {"a player who comes in, and robots", "IMPS", "",
       "A/B-C/Robot 420,E/F-Robot/H -50;A/X-C/Robot 50,E/F-Robot/H 50",
       "1 A & B, Robot & H, A & X 10/2, 2 C & Robot, E & F -10/2,"},
      {"a point a board", "teams MATCH_POINTS", "", "A/B-C/D 420,E/F-G/H -50;A/B-C/D 0,E/F-G/H 0",
       "1 A & B, G & H 3/2 75.00, 2 C & D, E & F 1/2 25.00,"},
      {"no teams", "IMPS", "", "A/B-C/D 420,E/F-G/H -50;A/B-G/H 50,E/F-C/D 50", kUnknown},
      {"nobody", "IMPS", "", "- 420,- -50", kUnknown},
      {"several matches", "teams IMPS", "", "1-2 420 imps=5,3-4 50 imps=-5,5-6 50,7-8 50",
       kUnknown},
  });
}

TEST(Ranking, SaysWhatCannotBeRanked) {
  Check({
      {"nothing", "MATCH_POINTS", "", "", "(There are no results)"},
      {"no result", "MATCH_POINTS", "", "A/B-C/D NP,E/F-G/H NP", "(There are no results)"},
      {"single results", "MATCH_POINTS", "", "A/B-C/D 420;A/B-C/D 0;A/B-C/D 0,E/F-G/H A",
       "(Boards 1-3 do not count: they have fewer than two scores)"},
      {"nobody", "MATCH_POINTS", "", "- 420,- 170",
       "(Players without a name or number are not ranked (board 1))"},
      {"a robot at every table", "MATCH_POINTS", "", "A/X-B/X 420,C/X-D/X 170",
       "North-South: 1 A & X 2/1 100.00, 2 C & X 0/1 0.00, "
       "East-West: 1 D & X 2/1 100.00, 2 B & X 0/1 0.00,"},
      {"a ruling that is none, and nobody to compare", "MATCH_POINTS", "",
       "A/B-C/D 420,- 170,I/J-K/L A9",
       "(Results without points do not count (board 1)) "
       "(Players without a name or number are not ranked (board 1)) "
       "(North-South: Only one pair can be ranked) (East-West: Only one pair can be ranked)"},
      {"pairs that cannot be told apart", "MATCH_POINTS", "5 EW Robot & Robot,6 EW Robot & Robot",
       "A/B-Robot/Robot 420,E/F-Robot/Robot 170",
       "North-South: 1 A & B 2/1 100.00, 2 E & F 0/1 0.00, "
       "(At several tables of one board, and so not ranked: Robot & Robot)"},
  });
}

TEST(Ranking, TakesAsManyTablesAsATravellerHas) {
  std::string board;
  for (std::size_t table = 0; table < kMaxTravellerRows; ++table) {
    const std::string number = std::to_string(table);
    board += "a" + number + "/b" + number + "-c" + number + "/d" + number + " " + number + ",";
  }
  const LinFile file = FileOf("MATCH_POINTS", "", board);
  const Ranking ranking = MakeRanking(file, MakeTravellers(file));
  ASSERT_EQ(ranking.tables.size(), 2U);
  EXPECT_EQ(ranking.tables[0].entrants.size(), kMaxTravellerRows);
  EXPECT_EQ(ranking.tables[1].entrants.front().names, "c0 & d0");
}

}  // namespace
}  // namespace tricklet::test
