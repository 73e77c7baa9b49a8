#include "publish/published.h"

#include <gtest/gtest.h>

#include "generate/deal.h"
#include "library/board_file.h"
#include "tests/review/club_evening.h"
#include "tests/support/fake_solver.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

class GatherTest : public LibraryTest {
 protected:
  GatherTest() {
    session.getSolver = [this]() -> Solver& { return solver; };
  }
  void PutDeal(int number) {
    Board board;
    EXPECT_TRUE(Random(board.hands, random));
    WriteFile(session.BoardPath(number), WriteBoardText(board));
  }
  FakeSolver solver;
  RandomSource random{1};
};

TEST_F(GatherTest, BoardsComeWithTablesParNotesAndResults) {
  PutDeal(2);
  PutDeal(7);
  PutDeal(8);
  WriteFile(session.BoardPath(3), "North\nAK");
  WriteFile(session.LibraryPath() / "Notes.txt", "[7]\nA squeeze\n");
  WriteFile(session.LibraryPath() / "LIN.txt", "[LIN]\r\nqx|o7|pn|S,W,N,E|ah|Board 7|\r\n");
  // Its table cannot be stored, and is published all the same.
  std::filesystem::permissions(session.BoardPath(7), std::filesystem::perms::owner_read);
  const auto gathered = GatherBoards(session, {1, 7}, true);
  ASSERT_TRUE(gathered);
  EXPECT_EQ(RemarkOn(*gathered, true), "The deal of board 3 is incomplete");
  const auto& boards = gathered->boards;
  ASSERT_EQ(boards.size(), 3U);
  for (const std::size_t at : {0U, 2U}) {
    EXPECT_TRUE(boards[at].complete);
    EXPECT_TRUE(boards[at].board.makeableValid) << at;
    EXPECT_TRUE(boards[at].par) << at;
  }
  EXPECT_TRUE(Stored(2).makeableValid) << "is kept for the next time";
  EXPECT_FALSE(Stored(7).makeableValid);
  EXPECT_FALSE(boards[1].complete);
  EXPECT_FALSE(boards[1].par);
  EXPECT_EQ(boards[2].notes, "A squeeze");
  EXPECT_EQ(boards[2].traveller.rows.size(), 1U);
  EXPECT_TRUE(boards[0].traveller.rows.empty());
  EXPECT_EQ(host.working, 0);
}

TEST_F(GatherTest, WhatStandsInTheWayIsTold) {
  host.ExpectTell(kNothingToPublish);
  EXPECT_FALSE(GatherBoards(session, {1, 999}, true));

  PutDeal(1);
  solver.missing = "no solver";
  auto gathered = GatherBoards(session, {1, 9}, true);
  ASSERT_TRUE(gathered) << "without tables";
  EXPECT_EQ(RemarkOn(*gathered, true), "no solver");
  EXPECT_EQ(RemarkOn(*gathered, false), "");

  solver.missing.clear();
  host.cancelAtStep = 1;
  EXPECT_FALSE(GatherBoards(session, {1, 9}, true)) << "cancelled";
}

using ReviewedEvening = ClubEvening;

TEST_F(ReviewedEvening, HasTheReportOfWhatIsPublished) {
  Add(TableOf(3, "Ann & Bob", "Gus & Hal", "4S P P P", "10", kFirstTrick));
  Add(TableOf(4, "Ann & Bob", "Gus & Hal", "P P P 4S P P P", "10", "H4"));
  StoreResults();
  auto published = GatherBoards(session, {3, 3}, false);
  ASSERT_TRUE(published);
  std::string failure;
  EXPECT_TRUE(AddReview(session, *published, failure));
  EXPECT_EQ(failure, "There is no double-dummy solver");
  EXPECT_FALSE(published->review);

  session.getSolver = [this]() -> Solver& { return solver; };
  EXPECT_TRUE(AddReview(session, *published, failure));
  EXPECT_EQ(failure, "");
  ASSERT_TRUE(published->review);
  EXPECT_EQ(published->review->report.boards.size(), 1U);
  EXPECT_EQ(published->review->report.reviewed, 1);

  Published withoutResults;
  EXPECT_TRUE(AddReview(session, withoutResults, failure));
  EXPECT_EQ(failure, "There are no results in this library");
}

}  // namespace
}  // namespace tricklet::test
