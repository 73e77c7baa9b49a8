// The commands "generate" and "edit" of the command line.
#include "core/statistics.h"
#include "library/board_file.h"
#include "tests/cli/command_line.h"
#include "tests/support/fake_solver.h"

namespace tricklet {
namespace {

class GenerateCommands : public test::CommandLine {
 protected:
  Board Stored(int number) {
    Board board;
    board.boardNumber = number;
    const std::string name = ZeroPadded(number, 3) + ".txt";
    EXPECT_TRUE(ReadBoardText(test::ReadFile(Root() / "Default" / name), board,
                              TableReading::OnlyWhenComplete));
    return board;
  }
  /// Board 1 after an edit that is carried out.
  HandTable Edited(const std::string& edit) {
    EXPECT_EQ(RunLine("--yes edit 1 " + edit), 0) << err;
    return Stored(1).hands;
  }
};

TEST_F(GenerateCommands, GeneratesWhatIsAsked) {
  const std::string line =
      "--yes generate 1 8 --seed 7 --hand1 dealer+2 --points1 15-17 --type1 Balanced --option1 2 "
      "--hand2 Dealer --points2 0-7 --lengths2 5-13,0-13,0-13,0-3";
  ASSERT_EQ(RunLine(line), 0) << err;
  EXPECT_EQ(out, "8 boards generated\n");
  for (int number = 1; number <= 8; ++number) {
    const Board board = Stored(number);
    const Statistics statistics = GetStats(board.hands);
    const Seat dealer = board.Dealer();
    const Seat partner = PartnerOf(dealer);
    EXPECT_LE(statistics.seatHcp[dealer], 7);
    EXPECT_GE(statistics.suitLength[dealer][Suit::Spades], 5);
    EXPECT_LE(statistics.suitLength[dealer][Suit::Clubs], 3);
    EXPECT_TRUE(statistics.seatHcp[partner] >= 15 && statistics.seatHcp[partner] <= 17);
    EXPECT_LT(statistics.suitLength[partner][Suit::Hearts], 5);
  }
  const HandTable before = Stored(5).hands;
  ASSERT_EQ(RunLine(line), 0);
  EXPECT_EQ(Stored(5).hands, before) << "the same seed";
  ASSERT_EQ(RunLine("--no generate 1 8"), 1);
  EXPECT_EQ(out, "");
  ASSERT_EQ(RunLine("--yes generate 5 5 --points1 19 --lengths1 12,0-1,0-1,0-1"), 0);
  EXPECT_EQ(out, "1 board generated\n");
  EXPECT_NE(err.find("1 board does not meet the constraints: 5\n"), std::string::npos) << err;
}

TEST_F(GenerateCommands, TablesNeedASolver) {
  EXPECT_EQ(RunLine("generate 3 4 --analyse"), 1);
  EXPECT_EQ(err, "There is no double-dummy solver\n");
  test::FakeSolver fake;
  solver = [&fake]() -> Solver& { return fake; };
  EXPECT_EQ(RunLine("generate 3 4 --analyse"), 0);
  EXPECT_EQ(err, "2 tables have been computed\n");
  EXPECT_TRUE(Stored(4).makeableValid);
  fake.failure = "Too many tables";
  EXPECT_EQ(RunLine("generate 5 6 --analyse"), 1);
  EXPECT_EQ(err, "Too many tables\n");
}

TEST_F(GenerateCommands, RefusesContradictionsAndWrongUsage) {
  const struct {
    int code;
    const char* arguments;
    const char* message;
  } kCases[] = {
      {1, "--hand1 S --hand2 south", "Hand 2 is the same direction as hand 1"},
      {2, "--hand1 up", "up is no seat"},
      {2, "--hand1 dealer+4", "dealer+4 is no seat"},
      {2, "--hand1 dealer-1", "dealer-1 is no seat"},
      {2, "--hand1 N --hand2 dealer", "Both hands are given by seats, or both from the dealer"},
      {2, "--points1 17-15", "17-15 is no range of 0-37 points"},
      {2, "--points2 15-38", "15-38 is no range of 0-37 points"},
      {2, "--points1 15-", "15- is no range of 0-37 points"},
      {2, "--points1 +5", "+5 is no range of 0-37 points"},
      {2, "--lengths1 1,2,3", "1,2,3 are no four ranges of 0-13 cards"},
      {2, "--lengths1 1,2,3,14", "1,2,3,14 are no four ranges of 0-13 cards"},
      {2, "--type1 flat", "flat is no hand type"},
      {2, "--type1 4441 --option1 1", "4441 has no option 1"},
      {2, "--type1 weak2 --option1 3", "weak2 has no option 3"},
      {2, "--option1 1", "An option belongs to a type"},
      {2, "--lengths1 13,0,0,0 --type1 weak2", "A hand has either lengths or a type"},
  };
  for (const auto& c : kCases) {
    EXPECT_EQ(RunLine("generate 1 8 " + std::string(c.arguments)), c.code) << c.arguments;
    EXPECT_EQ(err, std::string(c.message) + "\n");
  }
  EXPECT_EQ(RunLine("generate 4 3"), 2);
  EXPECT_EQ(err, "The first board is above the last\n");
  for (const char* wrong : {"edit 4", "edit 4 swap N", "edit 0 clear", "edit 4 rotate",
                            "generate 1", "generate 0 3", "generate 1 1000"}) {
    EXPECT_EQ(RunLine(wrong), 2) << wrong;
  }
  EXPECT_FALSE(std::filesystem::exists(Root()));
}

TEST_F(GenerateCommands, EditsSaveAndShow) {
  ASSERT_EQ(RunLine("generate 1 1"), 0);
  const HandTable start = Stored(1).hands;
  EXPECT_EQ(Edited("rotate cw --with-auction")[Seat::East], start[Seat::North]);
  EXPECT_EQ(Edited("rotate ACW"), start);
  EXPECT_EQ(Edited("rotate half")[Seat::East], start[Seat::West]);
  EXPECT_EQ(Edited("swap n South")[Seat::North], start[Seat::North]);
  EXPECT_EQ(Edited("swapsuit S clubs")[Seat::South][Suit::Spades], start[Seat::South][Suit::Clubs]);
  EXPECT_FALSE(HasCards(Edited("clear")));
  EXPECT_EQ(Edited("hand w AKQJ.T.98.-")[Seat::West][Suit::Hearts].Count(), 1);
  EXPECT_NE(out.find("♥ 10"), std::string::npos) << out;
  EXPECT_EQ(Edited("hand N .T..KT9 --take")[Seat::West][Suit::Hearts].Count(), 0);
  const HandTable full = Edited("fill --seed 2");
  EXPECT_TRUE(GetStats(full).allHandsComplete);
  EXPECT_TRUE(full[Seat::North][Suit::Hearts].Has(Rank::Ten));
  EXPECT_EQ(Edited("fill --seed 3"), full) << "a full deal stays";
  Edited("clear");
  const HandTable dealt = Edited("fill --seed 2");
  Edited("clear");
  EXPECT_EQ(Edited("fill --seed 2"), dealt);
}

TEST_F(GenerateCommands, RefusedEditsLeaveTheFile) {
  const std::filesystem::path path = Root() / "Default" / "001.txt";
  test::WriteFile(path, test::OneSuitEachText());
  const struct {
    int code;
    const char* arguments;
    const char* message;
  } kCases[] = {{2, "rotate left", "A rotation is cw, acw or half"},
                {2, "swap N X", "A seat is N, E, S or W"},
                {2, "swapsuit N S", "A suit is S, H, D or C"},
                {2, "hand 1 ...", "A seat is N, E, S or W"},
                {1, "hand N .A..", "♥A is held by East"}};
  for (const auto& c : kCases) {
    EXPECT_EQ(RunLine("--yes edit 1 " + std::string(c.arguments)), c.code);
    EXPECT_EQ(err, std::string(c.message) + "\n");
  }
  EXPECT_EQ(RunLine("--no edit 1 clear"), 1);
  EXPECT_EQ(test::ReadFile(path), test::OneSuitEachText());
  EXPECT_EQ(RunLine("edit 8 swap N S"), 1);
  EXPECT_EQ(err, "There is no board 8 in library Default\n");
  EXPECT_EQ(RunLine("edit 8 hand N AKQJ.AKQ.AKQ.AKQ"), 0);
  EXPECT_EQ(RunLine("edit 9 fill"), 0);
  EXPECT_EQ(RunLine("boards"), 0);
  EXPECT_EQ(out, "1\n8\n9\n");
}

}  // namespace
}  // namespace tricklet
