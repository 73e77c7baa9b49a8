#include "formats/results/lin_file.h"

#include <gtest/gtest.h>

#include "core/fault.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;
using test::ReadFile;
using test::WriteFile;

LinFile PairsEvent() {
  return {.boardScoringMethod = "MATCH_POINTS",
          .boardScoringAbb = "MP",
          .teamEvent = {},
          .names = {"1 NS Zo\u00eb & \u0141ukasz", "2 EW Cy & Di"},
          .lin = {"qx|o1|rh||ah|Board 1|pg||qent|9|qens|140|", "qx|c1|rh||ah|Board 1|pg||"}};
}

TEST(LinFile, IsWrittenSectionBySection) {
  const std::string scoring = "[BoardScoringMethod]\r\nMATCH_POINTS\r\n[BoardScoringAbb]\r\nMP\r\n";
  const std::string rest =
      "[Names]\r\n1 NS Zo\u00eb & \u0141ukasz\r\n2 EW Cy & Di\r\n"
      "[LIN]\r\nqx|o1|rh||ah|Board 1|pg||qent|9|qens|140|\r\nqx|c1|rh||ah|Board 1|pg||\r\n";
  EXPECT_EQ(LinFileText(PairsEvent()), scoring + rest);
  EXPECT_EQ(ParseLinFile(scoring + rest), PairsEvent());
  LinFile data = PairsEvent();
  data.teamEvent = {{"1 Hearts", "2 Spades"}, "IMPS", "IMP"};
  const std::string teams = scoring +
                            "[Teams]\r\n1 Hearts\r\n2 Spades\r\n[TeamScoringMethod]\r\n"
                            "IMPS\r\n[TeamScoringAbb]\r\nIMP\r\n" +
                            rest;
  EXPECT_EQ(LinFileText(data), teams);
  data.teamEvent->teamScoringMethod.clear();
  EXPECT_EQ(ParseLinFile(teams), data) << "the written spelling is not the one that is looked for";
  const LinFile other = ParseLinFile("[TeamsScoringMethod]\nVP\n");
  EXPECT_EQ(other.teamEvent.value_or(LinTeams()).teamScoringMethod, "VP");
}

TEST(LinFile, ReadsWhatOthersWrite) {
  const LinFile expected = PairsEvent();
  const std::string text = LinFileText(expected);
  std::string lf;
  std::string cr;
  for (const char c : text) {
    if (c != '\r') lf += c;
    if (c != '\n') cr += c;
  }
  EXPECT_EQ(ParseLinFile(lf), expected);
  EXPECT_EQ(ParseLinFile(cr), expected);
  EXPECT_EQ(ParseLinFile("\xEF\xBB\xBF" + text), expected) << "with a byte order mark";
  EXPECT_EQ(ParseLinFile("lost\n[unknown]\nlost\n\n" + text), expected);
  EXPECT_EQ(ParseLinFile("[NAMES]\n1 NS Zo\xEB & Cy\n").names,
            std::vector<std::string>{"1 NS Zo\u00eb & Cy"});
  EXPECT_EQ(ParseLinFile("[boardscoring]\nIMPS\n").boardScoringMethod, "IMPS");
  EXPECT_TRUE(ParseLinFile("").Empty());
}

TEST(LinFile, AValueCannotLeaveItsLine) {
  LinFile data;
  data.boardScoringMethod = "[LIN]";
  data.names = {"1 NS Ann\r\n[LIN]\r\nqx|o9| & \tBob", ""};
  data.lin = {"qx|o1|\n\n[Names]\n", ""};
  const LinFile read = ParseLinFile(LinFileText(data));
  EXPECT_EQ(read.boardScoringMethod, " [LIN]");
  EXPECT_EQ(read.names, std::vector<std::string>{"1 NS Ann [LIN] qx|o9| &  Bob"});
  EXPECT_EQ(read.lin, std::vector<std::string>{"qx|o1| [Names] "});
}

class LinDataTest : public test::LibraryTest {};

TEST_F(LinDataTest, StaysInTheLibraryUntilRecycled) {
  EXPECT_EQ(LoadLinData(session), LinFile());
  StoreLinData(session, PairsEvent());
  EXPECT_EQ(LoadLinData(session), PairsEvent());
  EXPECT_TRUE(RecycleLinData(session));
  EXPECT_EQ(host.recycled, std::vector<std::string>{"LIN.txt"});
  EXPECT_TRUE(LoadLinData(session).Empty());
  EXPECT_TRUE(RecycleLinData(session)) << "nothing is left to recycle";
}

TEST_F(LinDataTest, AFailureIsAFault) {
  fs::remove_all(session.LibraryPath());
  EXPECT_THROW(StoreLinData(session, PairsEvent()), Fault);
  WriteFile(LinDataPath(session), "");
  fs::resize_file(LinDataPath(session), kMaxLinFileBytes + 1);
  EXPECT_THROW(LoadLinData(session), Fault);
}

}  // namespace
}  // namespace tricklet
