#include "ui/background/background_tables.h"

#include <QTest>
#include <gtest/gtest.h>

#include "analysis/deal_text.h"
#include "analysis/get_dds.h"
#include "library/board_file.h"
#include "library/board_store.h"
#include "tests/support/fake_solver.h"
#include "tests/support/library_fixture.h"

namespace tricklet::ui {
namespace {

constexpr int kBoards = 50;

class BackgroundTablesTest : public test::LibraryTest {
 protected:
  BackgroundTablesTest() {
    for (int number = 1; number <= kBoards; ++number) {
      Board board;
      for (int card = 0; card < kCardsInPack; ++card) {
        // another deal for every number: the pack dealt round, cut at the number
        AddCard(board.hands, Card::FromIndex((card * 7 + number) % kCardsInPack),
                static_cast<Seat>((card / 13 + number) % kSeats));
      }
      test::WriteFile(session.BoardPath(number), WriteBoardText(board));
    }
    FindFiles(session);
    session.getSolver = [this]() -> Solver& { return solver; };
    session.tablesInBackground = true;
  }
  void Go(int number) { ASSERT_TRUE(SelectBoard(session, number)); }
  /// The worker has had this many deals; their tables are delivered with the next events.
  void AwaitSolved(std::size_t count) {
    for (int left = 5000; left > 0 && solver.dealsSolved < count; --left) QTest::qSleep(1);
    ASSERT_EQ(solver.dealsSolved, count);
  }
  bool AwaitOwnTable(int number) {
    return QTest::qWaitFor([this, number] { return HasOwnTable(number); });
  }
  /// The table in the board's file is that of its own deal.
  bool HasOwnTable(int number) const {
    Board board;
    return ReadBoardText(test::ReadFile(session.BoardPath(number)), board, TableReading::Always) &&
           board.makeableValid &&
           board.makeable == ToMakeable(test::FakeSolver::RecordOf(SolverDealText(board.hands)));
  }
  int OwnTables() const {
    int count = 0;
    for (int number = 1; number <= kBoards; ++number) count += HasOwnTable(number) ? 1 : 0;
    return count;
  }

  test::FakeSolver solver;
};

TEST_F(BackgroundTablesTest, EveryBoardSteppedOverGetsItsOwnTable) {
  BackgroundTables tables(session);
  for (int number = 1; number <= kBoards; ++number) {
    Go(number);
    tables.Look();
    tables.Look();  // a second look asks nothing new
    if (number % 7 == 0) QCoreApplication::processEvents();
  }
  EXPECT_TRUE(QTest::qWaitFor([this] { return OwnTables() == kBoards; }));
  EXPECT_EQ(solver.dealsSolved, static_cast<std::size_t>(kBoards));
  EXPECT_TRUE(session.board.makeableValid);
  EXPECT_FALSE(session.board.handChanged);
}

TEST_F(BackgroundTablesTest, ABoardChangedMeanwhileKeepsNoForeignTable) {
  BackgroundTables tables(session);
  Go(3);
  tables.Look();
  test::WriteFile(session.BoardPath(3), test::OneSuitEachText());
  AwaitSolved(1);
  Go(4);
  tables.Look();
  Go(3);
  ASSERT_TRUE(AwaitOwnTable(4)) << "it is delivered after the table for board 3";
  EXPECT_FALSE(session.board.makeableValid);
  EXPECT_EQ(test::ReadFile(session.BoardPath(3)), test::OneSuitEachText());
}

TEST_F(BackgroundTablesTest, OnlyWhoAsksIsToldOfAFailure) {
  BackgroundTables tables(session);
  solver.failure = "Too many tables";
  Go(1);
  tables.Look();
  AwaitSolved(1);
  host.ExpectTell("Too many tables");  // once: a second message would not be expected
  tables.Ask();
  AwaitSolved(2);
  ASSERT_TRUE(QTest::qWaitFor([this] { return host.Done(); }));
  EXPECT_FALSE(session.board.makeableValid);
  tables.Look();  // it is not tried again
  solver.failure.clear();
  // The newest deal comes first: what was asked before board 2 is solved before board 3 at the
  // latest.
  for (const int number : {2, 3}) {
    Go(number);
    tables.Look();
    ASSERT_TRUE(AwaitOwnTable(number));
  }
  EXPECT_EQ(solver.dealsSolved, 4U);

  session.board.hands[Seat::North] = {};
  host.ExpectTell("Warning - hand North - ... has 0 cards.");
  tables.Ask();
}

}  // namespace
}  // namespace tricklet::ui
