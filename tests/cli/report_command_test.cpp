// The report of a session on the command line.
#include <gtest/gtest.h>

#include "tests/cli/command_line.h"
#include "tests/support/fake_solver.h"

namespace tricklet::test {
namespace {

/// Board 7, dealt by South with all vulnerable; its table makes par, by North-South.
class ReportCommand : public CommandLine {
 protected:
  ReportCommand() {
    EXPECT_EQ(Run("import @in.pbn"), 0);
    WriteFile(Root() / "Default" / "LIN.txt",
              "[BoardScoringMethod]\nMATCH_POINTS\n"
              "[Names]\n1 NS =Ann & Bob\n2 NS Cy & Di\n11 EW Ed & Flo\n12 EW Gus & Hal\n[LIN]\n" +
                  Record("Bob,Ed,=Ann,Flo", "4S", "pc|HT|pc|H3|pc|H7|pc|H2|qent|10|") +
                  Record("Di,Gus,Cy,Hal", "2S", "qent|11|"));
    // Whoever is on play has eight tricks to come.
    fake.solveCards = [](const SolverPosition&) { return std::vector<CardScore>{{{}, 8}}; };
    solver = [this]() -> Solver& { return fake; };
  }
  static std::string Record(const std::string& players, const std::string& contract,
                            const std::string& more) {
    return "pn|" + players +
           "|md|1SQT62HKQ62DK93CK8,SKJ4HT95DT76CAJ96,SA873HAJ83D52CQ32,S95H74DAQJ84CT754|"
           "ah|Board 7|mb|" +
           contract + "|mb|p|mb|p|mb|p|" + more + "\n";
  }
  FakeSolver fake;
};

TEST_F(ReportCommand, HasPairsAndBoards) {
  EXPECT_EQ(
      Answer("report"),
      "0 North-South\n"
      "No  Boards     Par  Bidding  Play  Decl   Got  Bid  Made  Can  -Game  -Slam  Over  x=  x-  "
      "Names\n"
      " 1       1     0.0      0.0   0.0  7.00  6.00    1     1    1      0      0     0   0   0  "
      "=Ann & Bob\n"
      " 2       1  -420.0   -450.0  30.0                1     1    1      1      0     0   0   0  "
      "Cy & Di\n\n"
      "East-West\n"
      "No  Boards    Par  Bidding   Play  Lead   Def   Got  Bid  Made  Can  -Game  -Slam  Over  x= "
      " "
      "x-  Names\n"
      "11       1    0.0      0.0    0.0  3.00  3.00  7.00    0     0    0      0      0     0   0 "
      "  "
      "0  Flo & Ed\n"
      "12       1  420.0    450.0  -30.0                      0     0    0      0      0     0   0 "
      "  "
      "0  Hal & Gus\n\n"
      "Board  Par               Results    Mean  NS  EW  =\n"
      "    7  4H=, 4S= NS +620        2  -210.0   0   1  1\n\n"
      "Double-dummy: every card seen.\n"
      "No play is known of 1 table\n");
}

TEST_F(ReportCommand, HasTheBoardsOfAPair) {
  ASSERT_EQ(Run("report --pair 11"), 0);
  EXPECT_NE(out.find("\nBoard  Sat  Against  Contract  By  Lead  Tricks  DD  Score  Par  Bidding  "
                     "Play  Decl-  Lead-  Def-\n"
                     "    7  EW   1        4S        S   \u2665"
                     "10       10  10   -620    0        0     0      7      3     3\n"),
            std::string::npos)
      << out;
  ASSERT_EQ(Run("report --name ann --csv"), 0);
  EXPECT_NE(out.find("\n1,'=Ann & Bob,7,NS,11,4S,S,\u2665"
                     "10,10,10,620,0,0,0,7,3,3,,\n"),
            std::string::npos)
      << out;
  ASSERT_EQ(Run("report --board 7 --csv"), 0);
  EXPECT_NE(out.find("\n7,2,12,2S,S,,11,10,200,-420,-450,30,,,,EW,bidding,NS missed game,\n"),
            std::string::npos)
      << out;
}

TEST_F(ReportCommand, SaysWhatThereIsNot) {
  EXPECT_EQ(Answer("report --pair 5"), "1 Nobody in the results has the number 5\n");
  EXPECT_EQ(Answer("report --name Zoe"), "1 Nobody in the results has the name Zoe\n");
  EXPECT_EQ(Answer("report --board 8"), "1 There are no results of board 8\n");
  EXPECT_EQ(Run("report --pair 5 --name Zoe"), 2);
  EXPECT_EQ(Run("report --board 0"), 2);
  fake.missing = "no solver";
  EXPECT_EQ(Answer("report"), "1 no solver\n");
  std::filesystem::remove(Root() / "Default" / "LIN.txt");
  fake.missing.clear();
  EXPECT_EQ(Answer("report"), "1 There are no results in this library\n");
}

}  // namespace
}  // namespace tricklet::test
