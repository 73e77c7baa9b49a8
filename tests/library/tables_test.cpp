#include "library/tables.h"

#include <gtest/gtest.h>

#include "analysis/deal_text.h"
#include "analysis/get_dds.h"
#include "generate/deal.h"
#include "library/board_file.h"
#include "library/board_store.h"
#include "tests/support/fake_solver.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

class TablesTest : public LibraryTest {
 protected:
  /// Stores a deal of its own under the number.
  void PutDeal(int number) {
    Board board;
    EXPECT_TRUE(Random(board.hands, random));
    WriteFile(session.BoardPath(number), WriteBoardText(board));
  }
  void ExpectOwnTable(int number) {
    const Board board = Stored(number);
    EXPECT_TRUE(board.makeableValid) << number;
    EXPECT_EQ(board.makeable, ToMakeable(FakeSolver::RecordOf(SolverDealText(board.hands))))
        << number;
  }
  FakeSolver solver;
  RandomSource random{1};
};

TEST_F(TablesTest, EveryBoardGetsItsOwnTableInBatches) {
  for (int number = 1; number <= 100; ++number) PutDeal(number);
  WriteFile(session.BoardPath(200), "nothing");
  session.board.boardNumber = 40;
  LoadHand(session);
  EXPECT_EQ(AnalysisText(AnalyseBoards(session, solver, 1, 999, false)),
            "100 tables have been computed\n1 hand is incomplete");
  EXPECT_EQ(solver.batches, (std::vector<std::size_t>{4, 32, 32, 32}));
  for (int number = 1; number <= 100; ++number) ExpectOwnTable(number);
  EXPECT_TRUE(session.board.makeableValid) << "the current board has it too";
  EXPECT_EQ(host.working, 0);

  solver.batches.clear();
  EXPECT_EQ(AnalyseBoards(session, solver, 1, 999, false).computed, 0) << "nothing is missing now";
  EXPECT_EQ(AnalyseBoards(session, solver, 7, 9, true).computed, 3);
  EXPECT_EQ(solver.batches, std::vector<std::size_t>{3});
}

TEST_F(TablesTest, CancelKeepsWhatIsSolved) {
  for (int number = 1; number <= 80; ++number) PutDeal(number);
  host.cancelAtStep = 1;
  EXPECT_EQ(AnalysisText(AnalyseBoards(session, solver, 1, 999, false)),
            "4 tables have been computed\nAnalysis cancelled")
      << "the batch that was under way is kept";
}

TEST_F(TablesTest, ReadOnlyBoardsAreLeftAndNamed) {
  for (int number = 1; number <= 3; ++number) PutDeal(number);
  std::filesystem::permissions(session.BoardPath(2), std::filesystem::perms::owner_read);
  EXPECT_FALSE(StoreTable(session, session.BoardPath(2), Stored(2).hands, {}));
  EXPECT_EQ(AnalysisText(AnalyseBoards(session, solver, 1, 9, false)),
            "2 tables have been computed\nThe file\n" + PathText(session.BoardPath(2)) +
                "\nis read only so the hand cannot be saved");
  EXPECT_FALSE(Stored(2).makeableValid);
  std::filesystem::permissions(session.BoardPath(3), std::filesystem::perms::owner_read);
  EXPECT_EQ(AnalysisText(AnalyseBoards(session, solver, 1, 9, true)),
            "1 table has been computed\n"
            "The files of boards 2, 3 are read only so the hands cannot be saved");
}

TEST_F(TablesTest, FailuresAreTold) {
  PutDeal(1);
  solver.failure = "Too many tables";
  EXPECT_EQ(AnalysisText(AnalyseBoards(session, solver, 1, 9, false)), "Too many tables");
  EXPECT_FALSE(Stored(1).makeableValid);
  solver.missing = "no solver";
  host.ExpectTell("no solver");
  AnalyseLibrary(session, solver);
}

TEST_F(TablesTest, ATableIsStoredOnlyForTheDealThatWasAnalysed) {
  PutDeal(1);
  PutDeal(2);
  const Board first = Stored(1);
  MakeableTable table;
  table[TableSeat::North][TableStrain::Clubs] = 9;
  EXPECT_FALSE(StoreTable(session, session.BoardPath(2), first.hands, table));
  EXPECT_FALSE(StoreTable(session, session.BoardPath(3), first.hands, table));
  EXPECT_FALSE(Stored(2).makeableValid);
  EXPECT_TRUE(StoreTable(session, session.BoardPath(1), first.hands, table));
  EXPECT_EQ(Stored(1).makeable, table);

  session.board.boardNumber = 2;
  ASSERT_TRUE(LoadHand(session));
  session.board.hands = first.hands;  // edited since it was stored
  EXPECT_EQ(AnalyseBoards(session, solver, 2, 2, false).computed, 1);
  EXPECT_FALSE(session.board.makeableValid);
}

TEST_F(TablesTest, LoadingABoardAddsItsMissingTable) {
  PutDeal(5);
  session.board.boardNumber = 5;
  const auto loadedWithTable = [this] { return LoadHand(session) && session.board.makeableValid; };
  EXPECT_FALSE(loadedWithTable()) << "no solver is to be used";
  session.getSolver = [this]() -> Solver& { return solver; };
  session.settings.autoMakeable = false;
  EXPECT_FALSE(loadedWithTable());
  session.settings.autoMakeable = true;
  session.tablesInBackground = true;
  EXPECT_FALSE(loadedWithTable());
  EXPECT_TRUE(WantsTable(session, session.board));
  session.tablesInBackground = false;
  EXPECT_TRUE(loadedWithTable());
  EXPECT_FALSE(session.board.handChanged);
  ExpectOwnTable(5);
  EXPECT_EQ(solver.solved.size(), 1U);
}

}  // namespace
}  // namespace tricklet::test
