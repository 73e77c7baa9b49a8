// The command "deal" of the command line.
#include <algorithm>
#include <cstdlib>
#include <fstream>

#include "tests/cli/command_line.h"

namespace tricklet::test {
namespace {

class DealCommand : public CommandLine {
 protected:
  std::string Script(const std::string& text) {
    std::ofstream(File("script.dlr")) << text;
    return "@script.dlr";
  }
};

TEST_F(DealCommand, SameSeedGivesTheSameDealsOnAnyNumberOfCores) {
  const std::string script = Script(
      "produce 300\nhcp(north) > 15 and spades(south) > 4\n"
      "action printoneline (rnd(1000)), average hcp(north)");
  ASSERT_EQ(Run("deal " + script + " --seed 3 --cores 1"), 0) << err;
  const auto deals = [this] { return out.substr(0, out.find("Time needed")); };
  const std::string one = deals();
  EXPECT_EQ(std::count(one.begin(), one.end(), 'w'), 300);
  ASSERT_EQ(Run("deal " + script + " --seed 3 --cores 4"), 0) << err;
  EXPECT_EQ(deals(), one);
  ASSERT_EQ(Run("deal " + script + " --seed 4"), 0) << err;
  EXPECT_NE(deals(), one);
}

TEST_F(DealCommand, StoresBoardsAndNamesFaults) {
  const std::string script = Script("predeal north SAKQ\nproduce 5\nspades(south) > 3");
  ASSERT_EQ(Run("deal " + script + " --library Lab --first 4 --seed 1"), 0) << err;
  EXPECT_TRUE(out.starts_with("5 boards stored, ")) << out;
  EXPECT_TRUE(std::filesystem::exists(Root() / "Lab"));
  ASSERT_EQ(Run("--library Lab deal " + Script("generate 50\nhcp(north) > 24") +
                " --first 20 --produce 5 --seed 1"),
            0)
      << "fewer are no failure";
  EXPECT_NE(err.find("of 5 boards: no more deals met the condition in 50 tries"), std::string::npos)
      << err;
  EXPECT_EQ(Run("--no --library Lab deal " + script + " --first 8 --seed 1"), 1) << "overwrites";
  EXPECT_EQ(Run("deal " + script + " --first 996"), 2) << "beyond the last board";
  EXPECT_EQ(Run("deal " + Script("1\nhcp(nort) > 3")), 1);
  EXPECT_NE(err.find("script.dlr: Line 2, column 5: \"nort\" is no seat: north?"),
            std::string::npos)
      << err;
}

TEST_F(DealCommand, EndsPagesAndKeepsPbnToItself) {
  ASSERT_EQ(Run("deal " + Script("produce 1\naction print(west, east), printes \"x\", 7")), 0)
      << err;
  EXPECT_EQ(std::count(out.begin(), out.end(), '\f'), 2) << out;
  EXPECT_LT(out.find("East hands:"), out.find("West hands:"));
  EXPECT_TRUE(out.starts_with("x7")) << out;
  ASSERT_EQ(Run("deal " + Script("produce 1\npredeal north, SA\naction printpbn")), 0) << err;
  EXPECT_TRUE(out.ends_with("[Result \"?\"]\n\n")) << out;
  EXPECT_NE(err.find("Produced 1 hands"), std::string::npos) << err;
}

/// What dealer finds is found here, and as often: within five standard errors of the difference.
TEST_F(DealCommand, AgreesWithDealer) {
  const std::string condition =
      "points = hcp(west) + (spades(west) > 4 ? 1 : 0)\n"
      "points > 14 and losers(west) < 7 and (cccc(east) < 900 or shape(east, any 6xxx - 6xxx))\n";
  const std::string limits = "generate 100000 produce 100000\n" + condition;
  const std::string script = Script(limits + "action printpbn\n");
  const std::string call = "PATH=$PATH:/usr/games dealer -s 5 '" + File("script.dlr") + "' >'" +
                           File("dealer.pbn") + "'";
  ASSERT_EQ(std::system(call.c_str()), 0);
  ASSERT_EQ(Run("deal " + script + " --check @dealer.pbn"), 0) << err;
  const double theirs = static_cast<double>(std::count(out.begin(), out.end(), '\n'));
  EXPECT_GT(theirs, 1000);
  EXPECT_EQ(out.find("no"), std::string::npos);
  const std::string averaged = Script(limits + "action average 1");
  ASSERT_EQ(Run("deal " + averaged + " --seed 5"), 0) << err;
  const auto produced = out.find("Produced ");
  ASSERT_NE(produced, std::string::npos);
  const double ours = std::atof(out.c_str() + produced + 9);
  EXPECT_LT((ours - theirs) * (ours - theirs), 25 * (ours + theirs));
}

}  // namespace
}  // namespace tricklet::test
