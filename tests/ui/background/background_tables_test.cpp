#include "ui/background/background_tables.h"

#include <QTest>
#include <gtest/gtest.h>

#include "analysis/deal_text.h"
#include "analysis/get_dds.h"
#include "generate/deal.h"
#include "library/board_file.h"
#include "library/board_store.h"
#include "library/library_choice.h"
#include "tests/support/fake_solver.h"
#include "tests/support/library_fixture.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

constexpr int kBoards = 50;

class BackgroundTablesTest : public test::LibraryTest {
 protected:
  BackgroundTablesTest() {
    for (int number = 1; number <= kBoards; ++number) {
      Board board;
      Random(board.hands, session.random);
      test::WriteFile(session.BoardPath(number), WriteBoardText(board));
    }
    FindFiles(session);
    session.getSolver = [this]() -> Solver& { return solver; };
    session.tablesInBackground = true;
    QObject::connect(&tables, &BackgroundTables::Said,
                     [this](const QString& text) { said += text; });
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
  BackgroundTables tables{session};
  QStringList said;
};

TEST_F(BackgroundTablesTest, EveryBoardSteppedOverGetsItsOwnTable) {
  for (int number = 1; number <= kBoards; ++number) {
    Go(number);
    tables.ComputeMissing();
    tables.ComputeMissing();  // a second look asks nothing new
    if (number % 7 == 0) QCoreApplication::processEvents();
  }
  EXPECT_TRUE(QTest::qWaitFor([this] { return OwnTables() == kBoards; }));
  EXPECT_EQ(solver.dealsSolved, static_cast<std::size_t>(kBoards));
  EXPECT_TRUE(session.board.makeableValid);
  EXPECT_FALSE(session.board.handChanged);
}

TEST_F(BackgroundTablesTest, ABoardChangedMeanwhileKeepsNoForeignTable) {
  Go(3);
  tables.ComputeMissing();
  test::WriteFile(session.BoardPath(3), test::OneSuitEachText());
  AwaitSolved(1);
  Go(4);
  tables.ComputeMissing();
  Go(3);
  ASSERT_TRUE(AwaitOwnTable(4)) << "it is delivered after the table for board 3";
  EXPECT_FALSE(session.board.makeableValid);
  EXPECT_EQ(test::ReadFile(session.BoardPath(3)), test::OneSuitEachText());
}

TEST_F(BackgroundTablesTest, ATableThatIsAskedForIsAChangeOfTheBoard) {
  Go(1);
  const std::string before = test::ReadFile(session.BoardPath(1));
  tables.ComputeAsked();
  ASSERT_TRUE(QTest::qWaitFor([this] { return session.board.makeableValid; }));
  EXPECT_TRUE(session.board.handChanged);
  EXPECT_EQ(test::ReadFile(session.BoardPath(1)), before);
  host.ExpectAskWith("Overwrite existing board 1", Answer::Yes);
  ASSERT_TRUE(SaveHand(session));
  EXPECT_TRUE(HasOwnTable(1));

  Go(2);
  session.batchRunning = true;
  tables.ComputeAsked();
  AwaitSolved(2);
  QCoreApplication::processEvents();
  EXPECT_FALSE(session.board.makeableValid) << "not in the middle of a run";
  session.batchRunning = false;
  ASSERT_TRUE(QTest::qWaitFor([this] { return session.board.makeableValid; }));
  session.board.handChanged = false;

  Go(2);
  tables.ComputeAsked();
  Go(3);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !said.isEmpty(); }));
  EXPECT_TRUE(said.front().contains(QStringLiteral("board 2"))) << FromQt(said.front());
  EXPECT_FALSE(session.board.makeableValid || session.board.handChanged || HasOwnTable(2));
}

TEST_F(BackgroundTablesTest, AFailureIsAMessageToWhoAsksAndALineToOthers) {
  solver.failure = "Too many tables";
  Go(1);
  tables.ComputeMissing();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !said.isEmpty(); }));
  EXPECT_EQ(said, QStringList(QStringLiteral("No double-dummy table of board 1: Too many tables")));
  host.ExpectTell("Too many tables");
  tables.ComputeAsked();
  ASSERT_TRUE(QTest::qWaitFor([this] { return host.Done(); }));
  EXPECT_FALSE(session.board.makeableValid);
  tables.ComputeMissing();  // it is not tried again
  solver.failure.clear();
  Go(2);
  tables.ComputeMissing();
  ASSERT_TRUE(AwaitOwnTable(2));
  EXPECT_EQ(solver.dealsSolved, 3U);
  EXPECT_EQ(said.size(), 1);

  session.board.hands[Seat::North] = {};
  host.ExpectTell("Warning - hand North - ... has 0 cards.");
  tables.ComputeAsked();
}

}  // namespace
}  // namespace tricklet::ui
