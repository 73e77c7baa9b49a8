// Finding boards on the command line.
#include <gtest/gtest.h>

#include "tests/cli/command_line.h"

namespace tricklet::test {
namespace {

class FindCommand : public CommandLine {
 protected:
  FindCommand() {
    EXPECT_EQ(Run("import @in.pbn"), 0);
    WriteFile(Root() / "Default" / "Notes.txt", "[7]\nFor\tTuesday\nmore\n");
  }
};

TEST_F(FindCommand, ListsBoardsInColumns) {
  const std::string columns =
      "7\tS\tAll\t1NT S\t4H=, 4S= NS +620\t24-16\t4-4-3-2\t5-4-2-2\t4-4-3-2\t4-3-3-3\t0\t"
      "For Tuesday\n";
  EXPECT_EQ(Answer("find 'hcp(north) + hcp(south) == 24'"), "0 " + columns);
  EXPECT_EQ(Answer("find --all --words 'tues 1nt'"), "0 Default\t" + columns);
  EXPECT_EQ(Answer("find 'hcp(north) > 30'"), "0 No board has been found\n");
}

TEST_F(FindCommand, SaysWhatIsWrong) {
  WriteFile(Root() / "Default" / "009.txt", "AK\r\n");
  EXPECT_EQ(Run("find --words south"), 1);
  EXPECT_NE(out.find("7\tS\t"), std::string::npos);
  EXPECT_NE(err.find("009.txt: The file is no board\n"), std::string::npos) << err;
  EXPECT_EQ(Run("find 'hcp(nort) > 3'"), 1);
  EXPECT_NE(err.find("Line 1, column 5"), std::string::npos) << err;
  EXPECT_EQ(Run("find"), 2);
}

}  // namespace
}  // namespace tricklet::test
