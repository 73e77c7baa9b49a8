#include "ui/background/best_cards_finder.h"

#include <QTest>
#include <gtest/gtest.h>

#include "generate/deal.h"
#include "tests/support/calls.h"
#include "tests/support/fake_solver.h"
#include "tests/support/library_fixture.h"
#include "ui/control/play_control.h"

namespace tricklet::ui {
namespace {

class BestCardsFinderTest : public test::LibraryTest {
 protected:
  BestCardsFinderTest() {
    Random(session.board.hands, session.random);
    test::SetAuction(session.board, "1NT P P P");
    session.getSolver = [this]() -> Solver& { return solver; };
    session.settings.showBestCards = true;
    // Some card leads to as many tricks as cards are left to the hand on play.
    solver.solveCards = [this](const SolverPosition& position) -> std::vector<CardScore> {
      ++asked;
      const auto seat = SeatAfter(position.leader, static_cast<int>(position.trick.size()));
      int left = 0;
      for (const Suit suit : kAllSuits) left += position.cardsLeft[seat][suit].Count();
      return {{Card(), left}};
    };
  }
  bool Find() {
    finder.Find(play.Play(), session.board);
    return QTest::qWaitFor([this] { return !finder.Tricks().empty(); });
  }

  std::atomic<int> asked{0};
  test::FakeSolver solver;
  PlayControl play{session};
  BestCardsFinder finder{session};
};

TEST_F(BestCardsFinderTest, TellsThePositionInHandAndForgetsTheOneBefore) {
  ASSERT_TRUE(play.Start());
  ASSERT_TRUE(Find());
  EXPECT_EQ(finder.Tricks().front().tricks, 13);
  for (int cards = 0; cards < 4; ++cards) {
    int index = 0;
    while (!play.Play().IsLegal(Card::FromIndex(index))) ++index;
    play.PlayCard(Card::FromIndex(index));
    finder.Find(play.Play(), session.board);
    EXPECT_TRUE(finder.Tricks().empty()) << "an answer to the question before";
  }
  ASSERT_TRUE(Find());
  const int won = play.Play().Now().tricksWon[SideOf(*play.Play().Now().onPlay)];
  EXPECT_EQ(won, 1);
  EXPECT_EQ(finder.Tricks().front().tricks, 12 + won);
  play.QuitTrick();  // the same position: nothing is asked again
  const int before = asked;
  EXPECT_TRUE(Find());
  EXPECT_EQ(asked, before);
  session.settings.showBestCards = false;
  finder.Find(play.Play(), session.board);
  EXPECT_TRUE(finder.Tricks().empty());
  session.settings.showBestCards = true;
  EXPECT_TRUE(Find());
  EXPECT_EQ(asked, before) << "what was found is remembered";
  play.Stop();
  finder.Find(play.Play(), session.board);
  EXPECT_TRUE(finder.Tricks().empty());
}

}  // namespace
}  // namespace tricklet::ui
