// What the deals of a library look like, on the command line.
#include <gtest/gtest.h>

#include "tests/cli/command_line.h"

namespace tricklet::test {
namespace {

class StatisticsCommand : public CommandLine {};

TEST_F(StatisticsCommand, CountsCompleteDealsAndSaysWhatIsLeftOut) {
  EXPECT_EQ(Run("import @in.pbn"), 0);
  WriteFile(Root() / "Default" / "009.txt", "AK\r\n");
  WriteFile(Root() / "Empty" / "009.txt", "AK\r\n");
  EXPECT_EQ(Answer("--library Empty statistics"),
            "1 There are no complete deals in this library\n");
  const std::string answer = Answer("statistics --csv");
  EXPECT_EQ(answer.find("0 Table,Row,Counted,Of,Observed,Observed %,Expected,Expected %\n"), 0U)
      << answer;
  EXPECT_NE(answer.find("Board 9 is no complete deal and is left out\n"), std::string::npos)
      << answer;
}

}  // namespace
}  // namespace tricklet::test
