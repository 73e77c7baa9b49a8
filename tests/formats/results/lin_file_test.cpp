#include "formats/results/lin_file.h"

#include <gtest/gtest.h>

#include "core/fault.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

LinFile PairsEvent() {
  return {"MATCH_POINTS",
          "MP",
          {},
          {"1 NS Zo\u00eb & \u0141ukasz", "2 EW Cy & Di"},
          {"qx|o1|rh||ah|Board 1|pg||qent|9|qens|140|", "qx|c1|rh||ah|Board 1|pg||"}};
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
  EXPECT_EQ(ParseLinFile(teams), data) << "it is written in one spelling and looked for in another";
  data.teamEvent->teamScoringMethod = "VP";
  EXPECT_EQ(ParseLinFile(teams + "[TeamsScoringMethod]\nVP\n"), data);
}

TEST(LinFile, ReadsWhatOthersWrite) {
  const LinFile expected = PairsEvent();
  const std::string text = LinFileText(expected);
  std::string lf = text;
  std::string cr = text;
  std::erase(lf, '\r');
  std::erase(cr, '\n');
  for (const std::string& other : {lf, cr, "\xEF\xBB\xBF" + text, "lost\n[unknown]\n\n" + text}) {
    EXPECT_EQ(ParseLinFile(other), expected) << other;
  }
  EXPECT_EQ(ParseLinFile("[NAMES]\n1 NS Zo\xEB & Cy\n").names,
            std::vector<std::string>{"1 NS Zo\u00eb & Cy"});
  EXPECT_EQ(ParseLinFile("[boardscoring]\nIMPS\n").boardScoringMethod, "IMPS");
}

TEST(LinFile, AValueCannotLeaveItsLine) {
  const std::string name = "1 NS Ann\r\n[LIN]\r\nqx|o9| & \tBob";
  const LinFile data{"[LIN]", "", {}, {name, ""}, {"qx|o1|\n\n[Names]\n", ""}};
  const LinFile read{" [LIN]", "", {}, {"1 NS Ann [LIN] qx|o9| &  Bob"}, {"qx|o1| [Names] "}};
  EXPECT_EQ(ParseLinFile(LinFileText(data)), read);
}

class LinDataTest : public test::LibraryTest {};

TEST_F(LinDataTest, TheOldFileGoesToTheRecycleBinOrStays) {
  auto write = LibraryWrite::Begin(session);
  RenewLinData(session, PairsEvent(), *write);
  RenewLinData(session, PairsEvent(), *write);
  EXPECT_TRUE(host.recycled.empty()) << "it is the same";
  RenewLinData(session, LinFile(), *write);
  EXPECT_EQ(host.recycled, std::vector<std::string>{"LIN.txt"});
  host.hasRecycleBin = false;
  EXPECT_THROW(RenewLinData(session, PairsEvent(), *write), Fault);
  EXPECT_EQ(LoadLinData(session), LinFile());
}

}  // namespace
}  // namespace tricklet
