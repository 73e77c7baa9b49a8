#include "generate/generate.h"

#include <gtest/gtest.h>

#include "analysis/deal_text.h"
#include "analysis/get_dds.h"
#include "library/board_store.h"
#include "tests/support/fake_solver.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

const std::string kOverwrite =
    "You will overwrite existing boards in the library - Club\nDo you wish to do that?";

class GenerateRun : public test::LibraryTest {
 protected:
  GenerateRun() {
    session.random = RandomSource(1);
    constraints.numGenHands = 1;
  }

  GenerateOutcome Run(int first, int last, const GenerateOptions& options = {}) {
    constraints.genBoards = {first, last};
    GenerateOutcome outcome = Generate(session, constraints, options);
    EXPECT_EQ(host.working, 0);
    EXPECT_FALSE(session.batchRunning);
    return outcome;
  }
  Board Stored(int number) {
    Board board;
    board.boardNumber = number;
    bool complete = false;
    EXPECT_TRUE(LoadHandBasic(session, board, complete) && complete) << number;
    return board;
  }
  /// 12 spades and an ace beside them are 14 points.
  void AskTheImpossible() {
    constraints.suitLimits[GenHand::First][Suit::Spades] = {12, 13};
    constraints.pointLimits[GenHand::First] = {19, 37};
  }

  Constraints constraints;
};

TEST_F(GenerateRun, ShowsEachDealBeforeItIsStored) {
  std::vector<HandTable> shown;
  host.onStep = [&] {
    const int number = session.board.boardNumber;
    EXPECT_EQ(host.steps.back(), "Generating board " + std::to_string(number));
    EXPECT_FALSE(std::filesystem::exists(session.BoardPath(number)));
    shown.push_back(session.board.hands);
  };
  const GenerateOutcome outcome = Run(30, 33);
  EXPECT_EQ(outcome.boardsStored, 4);
  EXPECT_FALSE(outcome.cancelled || outcome.refused || outcome.failed);
  EXPECT_EQ(session.library.boardCount, 4);
  EXPECT_EQ(session.library.maxBoard, 33);
  EXPECT_EQ(session.board.boardNumber, 30);
  EXPECT_FALSE(session.board.handChanged);
  for (int number = 30; number <= 33; ++number) {
    EXPECT_EQ(Stored(number).hands, shown.at(static_cast<std::size_t>(number - 30)));
  }
}

TEST_F(GenerateRun, AsksOnceBeforeOverwriting) {
  PutBoard(2);
  PutBoard(3);
  FindFiles(session);
  session.board.boardNumber = 2;
  LoadHand(session);
  session.board.playMode = true;
  const Board before = session.board;
  host.ExpectAsk(kOverwrite, "Tricklet", Answer::No);
  EXPECT_TRUE(Run(1, 4).refused);
  EXPECT_TRUE(session.board.playMode) << "a play goes on when nothing was generated";
  EXPECT_EQ(session.library.boardCount, 2);
  EXPECT_EQ(session.board.hands, before.hands);
  host.ExpectAsk(kOverwrite, "Tricklet", Answer::Yes);
  EXPECT_EQ(Run(1, 4).boardsStored, 4);
  EXPECT_NE(Stored(2).hands, before.hands);
  EXPECT_EQ(Run(5, 6).boardsStored, 2) << "none of these existed";
}

TEST_F(GenerateRun, UnsavedChangesComeFirst) {
  session.board.handChanged = true;
  host.ExpectAskWith("Do you want to save changes to board 1", Answer::Cancel);
  EXPECT_TRUE(Run(1, 2).refused);
  EXPECT_EQ(session.library.boardCount, 0);
  EXPECT_TRUE(session.board.handChanged);
}

TEST_F(GenerateRun, CancelKeepsTheBoardsUpToThen) {
  host.cancelAtStep = 3;
  const GenerateOutcome outcome = Run(1, 9);
  EXPECT_TRUE(outcome.cancelled);
  EXPECT_EQ(outcome.boardsStored, 2);
  EXPECT_EQ(session.library.lastBoard, 2);
  EXPECT_EQ(session.board.boardNumber, 1);
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
  EXPECT_NE(shown[0].hands, shown[1].hands);
  EXPECT_EQ(Stored(1).hands, shown[2].hands);
  EXPECT_EQ(shown[3].boardNumber, 2);
  EXPECT_EQ(Stored(2).hands, shown[3].hands);
  EXPECT_EQ(session.library.boardCount, 2);
}

TEST_F(GenerateRun, TellsOnceWhichBoardsAreOutsideTheConstraints) {
  AskTheImpossible();
  host.ExpectTell("1 board does not meet the constraints: 7");
  EXPECT_EQ(Run(7, 7).outside, std::vector{7});
  host.ExpectTell(
      "25 boards do not meet the constraints: 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, "
      "24, 25, 26, 27, 28, 29, 30, ...");
  EXPECT_EQ(Run(11, 35).boardsStored, 25);
}

TEST_F(GenerateRun, TablesAreComputedInBatchesOnceAllBoardsAreStored) {
  test::FakeSolver solver;
  session.getSolver = [&solver]() -> Solver& { return solver; };
  EXPECT_EQ(Run(3, 42, {.analyse = true}).tables.computed, 40);
  EXPECT_EQ(solver.batches, (std::vector<std::size_t>{4, 32, 4}));
  for (const int number : {3, 42}) {
    const Board board = Stored(number);
    EXPECT_TRUE(board.makeableValid);
    EXPECT_EQ(board.makeable, ToMakeable(solver.RecordOf(SolverDealText(board.hands))));
  }
  EXPECT_TRUE(session.board.makeableValid);

  solver.failure = "Too many tables";
  AskTheImpossible();
  host.ExpectTell("2 boards do not meet the constraints: 50, 51\nToo many tables");
  EXPECT_EQ(Run(50, 51, {.analyse = true}).boardsStored, 2) << "though the solver fails";
  EXPECT_FALSE(session.board.makeableValid);

  solver.failure.clear();
  constraints.suitLimits[GenHand::First][Suit::Spades] = {0, 13};
  constraints.pointLimits[GenHand::First] = {0, 37};
  host.onStep = [this] {
    if (host.steps.back().starts_with("Analysing")) {
      host.cancelAtStep = static_cast<int>(host.steps.size());
    }
  };
  host.ExpectTell("2 tables have been computed\nAnalysis cancelled");
  EXPECT_TRUE(Run(60, 61, {.analyse = true}).tables.cancelled);
}

TEST_F(GenerateRun, ABoardThatCannotBeStoredEndsTheRun) {
  std::filesystem::create_directory(session.BoardPath(2));  // in the place of its file
  host.ExpectAskWith("Do you wish to try to continue?", Answer::Yes);
  const GenerateOutcome outcome = Run(1, 3);
  EXPECT_TRUE(outcome.failed);
  EXPECT_EQ(outcome.boardsStored, 1);
  EXPECT_EQ(session.board.hands, Stored(1).hands);
}

}  // namespace
}  // namespace tricklet
