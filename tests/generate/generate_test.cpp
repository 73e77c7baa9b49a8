#include "generate/generate.h"

#include <gtest/gtest.h>

#include "analysis/deal_text.h"
#include "analysis/get_dds.h"
#include "library/board_store.h"
#include "tests/support/asked.h"
#include "tests/support/fake_solver.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

class GenerateRun : public test::LibraryTest {
 protected:
  GenerateRun() {
    session.random = RandomSource(1);
    constraints.numGenHands = 1;
    host.onStep = [this] { shown.push_back(session.board); };
  }

  GenerateOutcome Run(int first, int last, const GenerateOptions& options = {}) {
    constraints.genBoards = {first, last};
    GenerateOutcome outcome = Generate(session, constraints, options);
    EXPECT_EQ(host.working, 0);
    EXPECT_FALSE(session.batchRunning || session.board.handChanged);
    return outcome;
  }

  Constraints constraints;
  std::vector<Board> shown;  // at each step
};

TEST_F(GenerateRun, ShowsEachDealBeforeItIsStoredUntilItIsCancelled) {
  host.onStep = [this] {
    shown.push_back(session.board);
    EXPECT_FALSE(std::filesystem::exists(session.BoardPath(shown.back().boardNumber)));
  };
  host.cancelAtStep = 4;
  const GenerateOutcome outcome = Run(30, 35);
  EXPECT_TRUE(outcome.cancelled && !outcome.refused && !outcome.failed);
  EXPECT_EQ(Shown(), "Club 30 of 32, 3 stored");
  for (std::size_t index = 0; index < 3; ++index) {
    const int number = 30 + static_cast<int>(index);
    EXPECT_EQ(host.steps[index], "Generating board " + std::to_string(number));
    EXPECT_EQ(Stored(number).hands, shown[index].hands);
  }
}

TEST_F(GenerateRun, AsksBeforeAnythingIsLost) {
  const std::string overwrite =
      "You will overwrite existing boards in the library - Club\nDo you wish to do that?";
  PutBoard(3);
  session.board.boardNumber = 3;
  LoadHand(session);
  const Board before = session.board;
  session.board.playMode = true;
  for (const int first : {1, 3}) {
    host.ExpectAsk(overwrite, "Tricklet", Answer::No);
    EXPECT_TRUE(Run(first, 3).refused);
    EXPECT_EQ(host.asked.detail,
              "1 board would be replaced: 3. What is replaced goes to the recycle bin.");
    EXPECT_EQ(host.asked.safe, Answer::No);
  }
  EXPECT_TRUE(session.board.playMode) << "a play goes on when nothing was generated";
  EXPECT_EQ(session.board.hands, before.hands);
  session.board.handChanged = true;
  host.ExpectAskWith("Do you want to save changes to board 3", Answer::Cancel);
  EXPECT_TRUE(Generate(session, constraints).refused);
  EXPECT_TRUE(session.board.handChanged);
  EXPECT_FALSE(std::filesystem::exists(session.BoardPath(1)));
  session.board = before;
  host.ExpectAsk(overwrite, "Tricklet", Answer::Yes);
  EXPECT_EQ(Run(1, 4).boardsStored, 4);
  EXPECT_NE(Stored(3).hands, before.hands);
}

TEST_F(GenerateRun, PreviewTakesDealsAgainOrEnds) {
  // No, No, Yes for board 1; Yes for board 2; Cancel at board 3.
  std::vector<Answer> answers{Answer::Cancel, Answer::Yes, Answer::Yes, Answer::No, Answer::No};
  const GenerateOutcome outcome = Run(1, 9, {.preview = [&](const Board& board) {
                                        EXPECT_EQ(board.hands, shown.back().hands);
                                        const Answer answer = answers.back();
                                        answers.pop_back();
                                        return answer;
                                      }});
  EXPECT_EQ(outcome.boardsStored, 2);
  EXPECT_TRUE(outcome.cancelled);
  ASSERT_EQ(shown.size(), 5U);
  EXPECT_NE(shown[0].hands, shown[1].hands);
  EXPECT_EQ(Stored(1).hands, shown[2].hands);
  EXPECT_EQ(Stored(2).hands, shown[3].hands);
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
  host.cancelAtStep = static_cast<int>(host.steps.size()) + 3;  // the first after both deals
  host.ExpectTell("2 tables have been computed\nAnalysis cancelled");
  EXPECT_TRUE(Run(50, 51, {.analyse = true}).tables.cancelled);
  solver.failure = "Too many tables";
  constraints = test::Asking(test::Min(12, 0, 0, 0, {19, 37}), {});  // met by no deal
  host.ExpectTell(
      "11 boards do not meet the constraints: 60, 61, 62, 63, 64, 65, 66, 67, 68, 69 ...\n"
      "Too many tables");
  EXPECT_EQ(Run(60, 70, {.analyse = true}).boardsStored, 11) << "though the solver fails";
  EXPECT_FALSE(session.board.makeableValid);
}

TEST_F(GenerateRun, ABoardThatCannotBeStoredEndsTheRun) {
  PutBoard(12);
  const auto path = session.BoardPath(12);
  std::filesystem::permissions(path, std::filesystem::perms::owner_read);
  host.ExpectAskWith("You will overwrite existing boards", Answer::Yes);
  host.ExpectTell("The file\n" + PathText(path) + "\nis read only so the hand cannot be saved");
  EXPECT_EQ(Run(11, 13, {.analyse = true}).boardsStored, 1);
  EXPECT_EQ(test::ReadFile(path), test::OneSuitEachText());
  std::filesystem::create_directory(session.BoardPath(2));  // in the place of its file
  host.ExpectAskWith("Do you wish to try to continue?", Answer::Yes);
  const GenerateOutcome outcome = Run(1, 3);
  EXPECT_TRUE(outcome.failed);
  EXPECT_EQ(outcome.boardsStored, 1);
  EXPECT_EQ(session.board.hands, Stored(1).hands);
}

}  // namespace
}  // namespace tricklet
