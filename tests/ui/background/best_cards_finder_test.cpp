#include "ui/background/best_cards_finder.h"

#include <QTest>
#include <gtest/gtest.h>

#include "tests/support/calls.h"
#include "tests/support/fake_solver.h"
#include "tests/support/library_fixture.h"
#include "ui/control/play_control.h"

namespace tricklet::ui {
namespace {

/// Some card leads to as many tricks as cards are left to the hand on play.
class CountingSolver : public test::FakeSolver {
 public:
  std::vector<CardScore> SolveCards(const SolverPosition& position) override {
    ++asked;
    const auto seat = static_cast<Seat>(
        (static_cast<std::size_t>(position.leader) + position.trick.size()) % kSeats);
    int left = 0;
    for (const Suit suit : kAllSuits) left += position.cardsLeft[seat][suit].Count();
    return {{Card(), left}};
  }
  std::atomic<int> asked{0};
};

class BestCardsFinderTest : public test::LibraryTest {
 protected:
  BestCardsFinderTest() {
    for (int card = 0; card < kCardsInPack; ++card) {
      AddCard(session.board.hands, Card::FromIndex(card), static_cast<Seat>(card % kSeats));
    }
    test::SetAuction(session.board, "1NT P P P");
    session.getSolver = [this]() -> Solver& { return solver; };
    session.settings.showBestCards = true;
  }
  bool Find() {
    finder.Find(play.Play(), session.board);
    return QTest::qWaitFor([this] { return !finder.Tricks().empty(); });
  }

  CountingSolver solver;
  PlayControl play{session};
  BestCardsFinder finder{session};
};

TEST_F(BestCardsFinderTest, TellsThePositionInHandAndForgetsTheOneBefore) {
  ASSERT_TRUE(play.Start());
  ASSERT_TRUE(Find());
  EXPECT_EQ(finder.Tricks().front().tricks, 13);
  for (int cards = 0; cards < 4; ++cards) {
    for (int index = 0; index < kCardsInPack; ++index) {
      if (!play.Play().IsLegal(Card::FromIndex(index))) continue;
      play.PlayCard(Card::FromIndex(index));
      break;
    }
    finder.Find(play.Play(), session.board);
    EXPECT_TRUE(finder.Tricks().empty()) << "an answer to the question before";
  }
  ASSERT_TRUE(Find());
  const int won = play.Play().Now().tricksWon[SideOf(*play.Play().Now().onPlay)];
  EXPECT_EQ(won, 1);
  EXPECT_EQ(finder.Tricks().front().tricks, 12 + won);
  play.QuitTrick();  // the same position: nothing is asked again
  const int asked = solver.asked;
  EXPECT_TRUE(Find());
  EXPECT_EQ(solver.asked, asked);
  session.settings.showBestCards = false;
  finder.Find(play.Play(), session.board);
  EXPECT_TRUE(finder.Tricks().empty());
  session.settings.showBestCards = true;
  EXPECT_TRUE(Find());
  EXPECT_EQ(solver.asked, asked + 1);
  play.Stop();
  finder.Find(play.Play(), session.board);
  EXPECT_TRUE(finder.Tricks().empty());
}

}  // namespace
}  // namespace tricklet::ui
