// The commands "generate" and "edit" of the command line.
#include "core/statistics.h"
#include "library/board_file.h"
#include "tests/cli/command_line.h"
#include "tests/support/fake_solver.h"

namespace tricklet::test {
namespace {

class GenerateCommands : public CommandLine {
 protected:
  Board Stored(int number) {
    Board board;
    board.boardNumber = number;
    const std::string text = ReadFile(Root() / "Default" / BoardFileName(number));
    EXPECT_TRUE(ReadBoardText(text, board, TableReading::OnlyWhenComplete));
    return board;
  }
  /// Board 1 after an edit that is carried out.
  HandTable Edited(const std::string& edit) {
    EXPECT_EQ(Run("--yes edit 1 " + edit), 0) << err;
    return Stored(1).hands;
  }
};

TEST_F(GenerateCommands, GeneratesWhatIsAsked) {
  const std::string line =
      "--yes generate 1 8 --seed 7 --hand1 dealer+2 --points1 15-17 --type1 Balanced --option1 2 "
      "--hand2 Dealer --points2 0-7 --lengths2 5-13,0-13,0-13,0-3";
  ASSERT_EQ(Run(line), 0) << err;
  EXPECT_EQ(out + err, "8 boards generated\n") << "all of them as asked";
  for (int number = 1; number <= 8; ++number) {
    const Board board = Stored(number);
    const Statistics statistics = GetStats(board.hands);
    const Seat partner = PartnerOf(board.Dealer());
    EXPECT_LE(statistics.seatHcp[board.Dealer()], 7);
    EXPECT_GE(statistics.suitLength[board.Dealer()][Suit::Spades], 5);
    EXPECT_TRUE(statistics.seatHcp[partner] >= 15 && statistics.seatHcp[partner] <= 17);
    EXPECT_LT(statistics.suitLength[partner][Suit::Hearts], 5);
  }
  const HandTable before = Stored(5).hands;
  ASSERT_EQ(Run(line), 0);
  EXPECT_EQ(Stored(5).hands, before) << "the same seed";
  EXPECT_EQ(Answer("generate 11 11 --points1 19 --lengths1 12,0-1,0-1,0-1"),
            "0 1 board generated\n1 board does not meet the constraints: 11\n");
}

TEST_F(GenerateCommands, TablesNeedASolver) {
  EXPECT_EQ(Answer("generate 3 4 --analyse"), "1 There is no double-dummy solver\n");
  FakeSolver fake;
  solver = [&fake]() -> Solver& { return fake; };
  EXPECT_EQ(Answer("generate 3 4 --analyse"),
            "0 2 boards generated\n2 tables have been computed\n");
  EXPECT_TRUE(Stored(4).makeableValid);
  fake.failure = "Too many tables";
  EXPECT_EQ(Answer("generate 5 6 --analyse"), "1 2 boards generated\nToo many tables\n");
}

TEST_F(GenerateCommands, RefusesWhatItCannotRead) {
  const std::pair<std::string, std::string> kCases[] = {
      {"4 3", "The first board is above the last"},
      {"1 8 --hand1 up", "up is no seat"},
      {"1 8 --hand1 dealer+4", "dealer+4 is no seat"},
      {"1 8 --hand1 N --hand2 dealer", "Both hands are given by seats, or both from the dealer"},
      {"1 8 --points1 17-15", "17-15 is no range of 0-37 points"},
      {"1 8 --points2 15-38", "15-38 is no range of 0-37 points"},
      {"1 8 --lengths1 1,2,3", "1,2,3 are no four ranges of 0-13 cards"},
      {"1 8 --lengths1 1,2,3,14", "1,2,3,14 are no four ranges of 0-13 cards"},
      {"1 8 --type1 flat", "flat is no hand type"},
      {"1 8 --type1 4441 --option1 1", "4441 has no option 1"},
      {"1 8 --option1 1", "An option belongs to a type"},
      {"1 8 --lengths1 13,0,0,0 --type1 weak2", "A hand has either lengths or a type"}};
  for (const auto& [asked, told] : kCases) {
    EXPECT_EQ(Answer("generate " + asked), "2 " + told + "\n");
  }
  EXPECT_EQ(Answer("generate 1 8 --hand1 S --hand2 south"),
            "1 Hand 2 is the same direction as hand 1\n");
  EXPECT_FALSE(Exists("root/Default"));
}

TEST_F(GenerateCommands, EditsOrLeavesTheFile) {
  ASSERT_EQ(Run("generate 1 1"), 0);
  const HandTable start = Stored(1).hands;
  EXPECT_EQ(Edited("rotate cw --with-auction")[Seat::East], start[Seat::North]);
  EXPECT_EQ(Edited("rotate ACW"), start);
  EXPECT_EQ(Edited("rotate half")[Seat::East], start[Seat::West]);
  EXPECT_EQ(Edited("swap n South")[Seat::North], start[Seat::North]);
  EXPECT_EQ(Edited("swapsuit S clubs")[Seat::South][Suit::Spades], start[Seat::South][Suit::Clubs]);
  EXPECT_FALSE(HasCards(Edited("clear")));
  EXPECT_EQ(Edited("hand w AKQJ.T.98.-")[Seat::West][Suit::Hearts].Count(), 1);
  EXPECT_NE(out.find("♥ 10"), std::string::npos) << out;
  const std::pair<std::string, const char*> kRefused[] = {
      {"rotate left", "2 A rotation is cw, acw or half\n"},
      {"swap N X", "2 A seat is N, E, S or W\n"},
      {"swapsuit N S", "2 A suit is S, H, D or C\n"},
      {"hand 1 ...", "2 A seat is N, E, S or W\n"},
      {"hand N A...", "1 ♠A is held by West\n"}};
  const HandTable before = Stored(1).hands;
  for (const auto& [edit, answer] : kRefused) EXPECT_EQ(Answer("--yes edit 1 " + edit), answer);
  EXPECT_EQ(Run("--no edit 1 clear"), 1);
  EXPECT_EQ(Stored(1).hands, before);
  EXPECT_EQ(Edited("hand N -.T.-.KT9 --take")[Seat::West][Suit::Hearts].Count(), 0);
  const HandTable full = Edited("fill --seed 2");
  EXPECT_TRUE(GetStats(full).allHandsComplete);
  EXPECT_TRUE(full[Seat::North][Suit::Hearts].Has(Rank::Ten));
}

TEST_F(GenerateCommands, CardsCanBeGivenToANewBoard) {
  ASSERT_EQ(Run("generate 1 1"), 0);
  EXPECT_EQ(Answer("edit 8 swap N S"), "1 There is no board 8 in library Default\n");
  EXPECT_EQ(Run("edit 8 hand N AKQJ.AKQ.AKQ.AKQ"), 0);
  EXPECT_EQ(Run("edit 9 fill --seed 4"), 0);
  EXPECT_EQ(Run("edit 10 fill --seed 4"), 0);
  EXPECT_EQ(Stored(9).hands, Stored(10).hands);
  EXPECT_EQ(Answer("boards"), "0 1\n8\n9\n10\n");
}

}  // namespace
}  // namespace tricklet::test
