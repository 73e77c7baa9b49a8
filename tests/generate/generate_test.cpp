#include "generate/generate.h"

#include <atomic>
#include <sstream>

#include <CLI/CLI.hpp>
#include <gtest/gtest.h>

#include "analysis/deal_text.h"
#include "analysis/get_dds.h"
#include "cli/board_text.h"
#include "cli/command.h"
#include "cli/edit_commands.h"
#include "cli/generate_commands.h"
#include "core/statistics.h"
#include "library/board_store.h"
#include "tests/support/fake_solver.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

const std::string kOverwrite =
    "You will overwrite existing boards in the library - Club\nDo you wish to do that?";

class GenerateRun : public test::LibraryTest {
 protected:
  GenerateRun() { session.random = RandomSource(1); }

  GenerateOutcome Run(int first, int last, const GenerateOptions& options = {}) {
    Constraints constraints;
    constraints.NumGenHands = 1;
    constraints.GenBoards = {first, last};
    return Generate(session, constraints, options);
  }
  Board Stored(int number) {
    Board board;
    board.BoardNumber = number;
    bool complete = false;
    EXPECT_TRUE(LoadHandBasic(session, board, complete));
    EXPECT_TRUE(complete) << number;
    return board;
  }
};

TEST_F(GenerateRun, StoresTheRangeAndShowsItsFirstBoard) {
  const GenerateOutcome outcome = Run(30, 33);
  EXPECT_EQ(outcome.boardsStored, 4);
  EXPECT_FALSE(outcome.cancelled || outcome.refused || outcome.failed);
  EXPECT_EQ(session.library.BoardCount, 4);
  EXPECT_EQ(session.library.FirstBoard, 30);
  EXPECT_EQ(session.library.MaxBoard, 33);
  EXPECT_EQ(session.board.BoardNumber, 30);
  EXPECT_EQ(session.board.Hands, Stored(30).Hands);
  EXPECT_FALSE(session.board.HandChanged);
  EXPECT_NE(Stored(31).Hands, Stored(32).Hands);
  const std::vector<std::string> steps{"Generating board 30", "Generating board 31",
                                       "Generating board 32", "Generating board 33"};
  EXPECT_EQ(host.steps, steps);
  EXPECT_EQ(host.working, 0);
}

TEST_F(GenerateRun, AsksOnceBeforeOverwriting) {
  PutBoard(2);
  PutBoard(3);
  FindFiles(session);
  session.board.BoardNumber = 2;
  LoadHand(session);
  session.board.PlayMode = true;
  const Board before = session.board;
  host.ExpectAsk(kOverwrite, "Tricklet", Answer::No);
  EXPECT_TRUE(Run(1, 4).refused);
  EXPECT_TRUE(session.board.PlayMode) << "a play goes on when nothing was generated";
  EXPECT_EQ(session.library.BoardCount, 2);
  EXPECT_EQ(session.board.Hands, before.Hands);
  host.ExpectAsk(kOverwrite, "Tricklet", Answer::Yes);
  EXPECT_EQ(Run(1, 4).boardsStored, 4);
  EXPECT_NE(Stored(2).Hands, before.Hands);
  EXPECT_EQ(Run(5, 6).boardsStored, 2) << "none of these existed";
}

TEST_F(GenerateRun, UnsavedChangesComeFirst) {
  session.board.HandChanged = true;
  host.ExpectAskWith("Do you want to save changes to board 1", Answer::Cancel);
  EXPECT_TRUE(Run(1, 2).refused);
  EXPECT_EQ(session.library.BoardCount, 0);
  EXPECT_TRUE(session.board.HandChanged);
}

TEST_F(GenerateRun, CancelKeepsTheBoardsUpToThen) {
  host.cancelAtStep = 3;
  const GenerateOutcome outcome = Run(1, 9);
  EXPECT_TRUE(outcome.cancelled);
  EXPECT_EQ(outcome.boardsStored, 2);
  EXPECT_EQ(session.library.LastBoard, 2);
  EXPECT_EQ(session.board.BoardNumber, 1);
}

TEST_F(GenerateRun, PreviewTakesDealsAgainOrEnds) {
  // No, No, Yes for board 1; Yes for board 2; Cancel at board 3.
  std::vector<Answer> answers{Answer::Cancel, Answer::Yes, Answer::Yes, Answer::No, Answer::No};
  std::vector<Board> shown;
  const GenerateOutcome outcome = Run(1, 9, {.preview = [&](const Board& board) {
                                        shown.push_back(board);
                                        const Answer answer = answers.back();
                                        answers.pop_back();
                                        return answer;
                                      }});
  EXPECT_EQ(outcome.boardsStored, 2);
  EXPECT_TRUE(outcome.cancelled);
  ASSERT_EQ(shown.size(), 5U);
  EXPECT_NE(shown[0].Hands, shown[1].Hands);
  EXPECT_EQ(Stored(1).Hands, shown[2].Hands);
  EXPECT_EQ(shown[3].BoardNumber, 2);
  EXPECT_EQ(Stored(2).Hands, shown[3].Hands);
  EXPECT_EQ(session.library.BoardCount, 2);
}

TEST_F(GenerateRun, TablesAreComputedInBatchesOnceAllBoardsAreStored) {
  test::FakeSolver solver;
  session.GetSolver = [&solver]() -> Solver& { return solver; };
  EXPECT_EQ(Run(3, 42, {.analyse = true}).tables.computed, 40);
  EXPECT_EQ(solver.batches, (std::vector<std::size_t>{4, 32, 4}));
  for (const int number : {3, 42}) {
    const Board board = Stored(number);
    EXPECT_TRUE(board.MakeableValid);
    EXPECT_EQ(board.Makeable, ToMakeable(solver.RecordOf(SolverDealText(board.Hands))));
  }
  EXPECT_TRUE(session.board.MakeableValid);
  EXPECT_EQ(host.working, 0);

  solver.failure = "Too many tables";
  const GenerateOutcome outcome = Run(50, 51, {.analyse = true});
  EXPECT_EQ(outcome.boardsStored, 2) << "deals are kept though the solver fails";
  EXPECT_EQ(outcome.tables.failure, "Too many tables");
  EXPECT_FALSE(session.board.MakeableValid);
}

TEST_F(GenerateRun, ABoardThatCannotBeStoredEndsTheRun) {
  std::filesystem::create_directory(session.BoardPath(2));  // in the place of its file
  host.ExpectAskWith("Do you wish to try to continue?", Answer::Yes);
  const GenerateOutcome outcome = Run(1, 3);
  EXPECT_TRUE(outcome.failed);
  EXPECT_EQ(outcome.boardsStored, 1);
  EXPECT_EQ(session.board.Hands, Stored(1).Hands);
  EXPECT_FALSE(session.BatchRunning);
}

class GenerateCommands : public GenerateRun {
 protected:
  cli::ExitCode GenerateWith(const cli::HandArguments& first,
                             const cli::HandArguments& second = {}) {
    cli::GenerateArguments arguments;
    arguments.first = 1;
    arguments.last = 8;
    arguments.hands.values_ = {{first, second}};
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
    board.Hands = session.board.Hands;
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
    const Statistics statistics = GetStats(board.Hands);
    const Seat dealer = board.Dealer();
    EXPECT_LE(statistics.SeatHCP[dealer], 7);
    EXPECT_GE(statistics.SuitLength[dealer][Suit::Spades], 5);
    EXPECT_LE(statistics.SuitLength[dealer][Suit::Clubs], 3);
    EXPECT_TRUE(statistics.SeatHCP[PartnerOf(dealer)] >= 15 &&
                statistics.SeatHCP[PartnerOf(dealer)] <= 17);
    EXPECT_LT(statistics.SuitLength[PartnerOf(dealer)][Suit::Hearts], 5);
  }
  const Board first = Stored(5);
  host.ExpectAsk(kOverwrite, "Tricklet", Answer::Yes);
  ASSERT_EQ(GenerateWith({}), cli::ExitCode::Done);
  EXPECT_NE(Stored(5).Hands, first.Hands);
  const Board again = Stored(5);
  host.ExpectAsk(kOverwrite, "Tricklet", Answer::Yes);
  ASSERT_EQ(GenerateWith({}), cli::ExitCode::Done);
  EXPECT_EQ(Stored(5).Hands, again.Hands) << "the same seed";
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
  EXPECT_EQ(session.library.BoardCount, 0);
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
  EXPECT_EQ(session.library.BoardCount, 0);
  session.GetSolver = [&solver]() -> Solver& { return solver; };
  host.ExpectTell("2 tables have been computed");
  EXPECT_EQ(run(generate), cli::ExitCode::Done);
  EXPECT_GE(GetStats(Stored(4).Hands).SeatHCP[Seat::East], 20);
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
  ASSERT_EQ(Run(1, 1).boardsStored, 1);
  const HandTable start = session.board.Hands;
  EXPECT_EQ(Edited(Rotate, {"cw"}).Hands[Seat::East], start[Seat::North]);
  EXPECT_EQ(Edited(Rotate, {"ACW"}).Hands, start);
  EXPECT_EQ(Edited(Rotate, {"half"}).Hands[Seat::East], start[Seat::West]);
  EXPECT_EQ(Edited(SwapHands, {"n", "South"}).Hands[Seat::North], start[Seat::North]);
  EXPECT_EQ(Edited(SwapSuits, {"S", "clubs"}).Hands[Seat::South][Suit::Spades],
            start[Seat::South][Suit::Clubs]);
  EXPECT_FALSE(HasCards(Edited(Clear).Hands));
  EXPECT_EQ(Edited(SetHand, {"w", "AKQJ.T.98.-"}).Hands[Seat::West][Suit::Hearts].Count(), 1);
  const Board full = Edited(Fill);
  EXPECT_TRUE(GetStats(full.Hands).AllHandsComplete);
  EXPECT_TRUE(full.Hands[Seat::West][Suit::Hearts].Has(Rank::Ten));
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
