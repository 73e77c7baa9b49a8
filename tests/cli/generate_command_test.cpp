#include <atomic>
#include <sstream>

#include <CLI/CLI.hpp>
#include <gtest/gtest.h>

#include "cli/board_text.h"
#include "cli/command.h"
#include "cli/edit_commands.h"
#include "cli/generate_commands.h"
#include "core/statistics.h"
#include "generate/generate.h"
#include "library/board_store.h"
#include "tests/support/fake_solver.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

const std::string kOverwrite =
    "You will overwrite existing boards in the library - Club\nDo you wish to do that?";

class GenerateCommands : public test::LibraryTest {
 protected:
  GenerateCommands() { session.random = RandomSource(1); }

  Board Stored(int number) {
    Board board;
    board.boardNumber = number;
    bool complete = false;
    EXPECT_TRUE(LoadHandBasic(session, board, complete));
    EXPECT_TRUE(complete) << number;
    return board;
  }
  cli::ExitCode GenerateWith(const cli::HandArguments& first,
                             const cli::HandArguments& second = {}) {
    cli::GenerateArguments arguments;
    arguments.first = 1;
    arguments.last = 8;
    arguments.hands.values = {{first, second}};
    arguments.seed = 7;
    return cli::GenerateBoards(context, arguments);
  }
  cli::ExitCode Edit(cli::EditAction action, std::vector<std::string> words = {},
                     bool option = false) {
    cli::EditArguments arguments;
    arguments.board = 1;
    arguments.action = action;
    arguments.words = std::move(words);
    arguments.takeAuction = arguments.takeCards = option;
    arguments.seed = 8;
    return cli::EditBoard(context, arguments);
  }
  /// Board 1 after an edit that is carried out.
  Board Edited(cli::EditAction action, const std::vector<std::string>& words = {}) {
    data.str("");
    host.ExpectAsk("Overwrite existing board 1?", "Hand already in library", Answer::Yes);
    EXPECT_EQ(Edit(action, words), cli::ExitCode::Done);
    EXPECT_EQ(data.str(), cli::HandsText(session.board));
    Board board;
    LoadHand(session);
    board.hands = session.board.hands;
    return board;
  }

  std::ostringstream data;
  cli::Context context{session, data};
};

TEST_F(GenerateCommands, GeneratesWhatIsAsked) {
  ASSERT_EQ(
      GenerateWith({.direction = "dealer+2", .points = "15-17", .type = "Balanced", .option = 2},
                   {.direction = "Dealer", .points = "0-7", .lengths = "5-13,0-13,0-13,0-3"}),
      cli::ExitCode::Done);
  EXPECT_EQ(data.str(), "8 boards generated\n");
  for (int number = 1; number <= 8; ++number) {
    const Board board = Stored(number);
    const Statistics statistics = GetStats(board.hands);
    const Seat dealer = board.Dealer();
    EXPECT_LE(statistics.seatHcp[dealer], 7);
    EXPECT_GE(statistics.suitLength[dealer][Suit::Spades], 5);
    EXPECT_LE(statistics.suitLength[dealer][Suit::Clubs], 3);
    EXPECT_TRUE(statistics.seatHcp[PartnerOf(dealer)] >= 15 &&
                statistics.seatHcp[PartnerOf(dealer)] <= 17);
    EXPECT_LT(statistics.suitLength[PartnerOf(dealer)][Suit::Hearts], 5);
  }
  const Board first = Stored(5);
  host.ExpectAsk(kOverwrite, "Tricklet", Answer::Yes);
  ASSERT_EQ(GenerateWith({}), cli::ExitCode::Done);
  EXPECT_NE(Stored(5).hands, first.hands);
  const Board again = Stored(5);
  host.ExpectAsk(kOverwrite, "Tricklet", Answer::Yes);
  ASSERT_EQ(GenerateWith({}), cli::ExitCode::Done);
  EXPECT_EQ(Stored(5).hands, again.hands) << "the same seed";
}

TEST_F(GenerateCommands, RefusesContradictionsAndWrongUsage) {
  const struct {
    cli::HandArguments first;
    cli::HandArguments second;
    const char* message;
    cli::ExitCode code;
  } kCases[] = {
      {{.direction = "S"},
       {.direction = "south"},
       "Hand 2 is the same direction as hand 1",
       cli::ExitCode::Refused},
      {{.points = "30", .lengths = "0-13,0,0,0"},
       {},
       "Cannot have 30 points with the distribution for hand 1",
       cli::ExitCode::Refused},
      {{.direction = "up"}, {}, "up is no seat", cli::ExitCode::Usage},
      {{.direction = "dealer+4"}, {}, "dealer+4 is no seat", cli::ExitCode::Usage},
      {{.direction = "N"},
       {.direction = "dealer"},
       "Both hands are given by seats, or both from the dealer",
       cli::ExitCode::Usage},
      {{.points = "17-15"}, {}, "17-15 is no range of 0-37 points", cli::ExitCode::Usage},
      {{}, {.points = "15-38"}, "15-38 is no range of 0-37 points", cli::ExitCode::Usage},
      {{.points = "15-"}, {}, "15- is no range of 0-37 points", cli::ExitCode::Usage},
      {{.lengths = "1,2,3"}, {}, "1,2,3 are no four ranges of 0-13 cards", cli::ExitCode::Usage},
      {{.lengths = "1,2,3,14"},
       {},
       "1,2,3,14 are no four ranges of 0-13 cards",
       cli::ExitCode::Usage},
      {{.type = "flat"}, {}, "flat is no hand type", cli::ExitCode::Usage},
      {{.type = "4441", .option = 1}, {}, "4441 has no option 1", cli::ExitCode::Usage},
      {{.type = "weak2", .option = 3}, {}, "weak2 has no option 3", cli::ExitCode::Usage},
      {{.option = 1}, {}, "An option belongs to a type", cli::ExitCode::Usage},
      {{.lengths = "0-13,0-13,0-13,0-13", .type = "weak2"},
       {},
       "A hand has either lengths or a type",
       cli::ExitCode::Usage},
  };
  for (const auto& c : kCases) {
    host.ExpectTell(c.message);
    EXPECT_EQ(GenerateWith(c.first, c.second), c.code) << c.message;
  }
  EXPECT_EQ(session.library.boardCount, 0);
}

TEST_F(GenerateCommands, AreParsed) {
  std::istringstream in;
  std::ostringstream messages;
  const std::atomic<bool> interrupted{false};
  const cli::ConsoleHost console(in, messages, {}, interrupted);
  test::FakeSolver solver;
  const auto run = [&](const std::string& line) {
    CLI::App app;
    cli::Command command;
    cli::AddGenerateCommands(app, command);
    cli::AddEditCommands(app, command);
    app.parse(line);
    return command(context, console);
  };
  const std::string generate =
      "generate 3 4 --hand1 E --points1 20-37 --type1 4441 --hand2 w "
      "--lengths2 0-13,0-13,0-13,0-3 --points2 0-4 --seed 1 --analyse";
  host.ExpectTell("There is no double-dummy solver");
  EXPECT_EQ(run(generate), cli::ExitCode::Refused);
  EXPECT_EQ(session.library.boardCount, 0);
  session.getSolver = [&solver]() -> Solver& { return solver; };
  host.ExpectTell("2 tables have been computed");
  EXPECT_EQ(run(generate), cli::ExitCode::Done);
  EXPECT_GE(GetStats(Stored(4).hands).seatHcp[Seat::East], 20);
  const std::vector<std::string> edits{
      "edit 4 rotate acw --with-auction", "edit 4 swap N S",      "edit 4 swapsuit H D",
      "edit 4 hand N .A..KT9 --take",     "edit 4 fill --seed 2", "edit 4 clear"};
  for (const std::string& edit : edits) {
    host.ExpectAsk("Overwrite existing board 4?", "Hand already in library", Answer::Yes);
    EXPECT_EQ(run(edit), cli::ExitCode::Done) << edit;
  }
  for (const char* wrong : {"edit 4", "edit 4 swap N", "edit 0 clear", "edit 4 rotate",
                            "generate 1", "generate 0 3", "generate 1 1000"}) {
    EXPECT_THROW(run(wrong), CLI::ParseError) << wrong;
  }
}

TEST_F(GenerateCommands, EditsSaveAndShow) {
  using enum cli::EditAction;
  Constraints one;
  one.numGenHands = 1;
  one.genBoards = {1, 1};
  ASSERT_EQ(Generate(session, one, {}).boardsStored, 1);
  const HandTable start = session.board.hands;
  EXPECT_EQ(Edited(Rotate, {"cw"}).hands[Seat::East], start[Seat::North]);
  EXPECT_EQ(Edited(Rotate, {"ACW"}).hands, start);
  EXPECT_EQ(Edited(Rotate, {"half"}).hands[Seat::East], start[Seat::West]);
  EXPECT_EQ(Edited(SwapHands, {"n", "South"}).hands[Seat::North], start[Seat::North]);
  EXPECT_EQ(Edited(SwapSuits, {"S", "clubs"}).hands[Seat::South][Suit::Spades],
            start[Seat::South][Suit::Clubs]);
  EXPECT_FALSE(HasCards(Edited(Clear).hands));
  EXPECT_EQ(Edited(SetHand, {"w", "AKQJ.T.98.-"}).hands[Seat::West][Suit::Hearts].Count(), 1);
  const Board full = Edited(Fill);
  EXPECT_TRUE(GetStats(full.hands).allHandsComplete);
  EXPECT_TRUE(full.hands[Seat::West][Suit::Hearts].Has(Rank::Ten));
}

TEST_F(GenerateCommands, RefusedEditsLeaveTheFile) {
  using enum cli::EditAction;
  PutBoard(1);
  FindFiles(session);
  const std::string file = test::ReadFile(session.BoardPath(1));
  const struct {
    cli::EditAction action;
    std::vector<std::string> words;
    const char* message;
    cli::ExitCode code;
  } kCases[] = {{Rotate, {"left"}, "A rotation is cw, acw or half", cli::ExitCode::Usage},
                {SwapHands, {"N", "X"}, "A seat is N, E, S or W", cli::ExitCode::Usage},
                {SwapSuits, {"N", "S"}, "A suit is S, H, D or C", cli::ExitCode::Usage},
                {SetHand, {"1", "-.-.-.-"}, "A seat is N, E, S or W", cli::ExitCode::Usage},
                {SetHand,
                 {"N", "-.A.-.-"},
                 "\u2665"
                 "A is held by East",
                 cli::ExitCode::Refused}};
  for (const auto& c : kCases) {
    host.ExpectTell(c.message);
    EXPECT_EQ(Edit(c.action, c.words), c.code);
  }
  host.ExpectAsk("Overwrite existing board 1?", "Hand already in library", Answer::No);
  EXPECT_EQ(Edit(Clear), cli::ExitCode::Refused);
  EXPECT_EQ(test::ReadFile(session.BoardPath(1)), file);
  EXPECT_EQ(data.str(), "");
}

}  // namespace
}  // namespace tricklet
