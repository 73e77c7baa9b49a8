#include "ui/background/best_cards_finder.h"

#include <bit>

#include <QTest>
#include <gtest/gtest.h>

#include "tests/support/calls.h"
#include "tests/support/fake_solver.h"
#include "tests/support/library_fixture.h"
#include "ui/control/play_control.h"

namespace tricklet::ui {
namespace {

/// Each card leads to as many tricks as cards are left to the hand on play.
class CountingSolver : public test::FakeSolver {
 public:
  std::vector<CardScore> SolveCards(const SolverPosition& position) override {
    ++asked;
    const auto seat = static_cast<Seat>(
        (static_cast<std::size_t>(position.leader) + position.trick.size()) % kSeats);
    std::vector<CardScore> scores;
    int left = 0;
    for (const Suit suit : kAllSuits) left += position.cardsLeft[seat][suit].Count();
    for (const Suit suit : kAllSuits) {
      if (!position.cardsLeft[seat][suit].Empty()) {
        scores.push_back(
            {{suit, static_cast<Rank>(std::countr_zero(position.cardsLeft[seat][suit].Bits()))},
             left});
      }
    }
    return scores;
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
  play.Stop();
  finder.Find(play.Play(), session.board);
  EXPECT_TRUE(finder.Tricks().empty());
}

TEST_F(BestCardsFinderTest, TellsNothingUnlessWanted) {
  ASSERT_TRUE(play.Start());
  ASSERT_TRUE(Find());
  session.settings.showBestCards = false;
  finder.Find(play.Play(), session.board);
  EXPECT_TRUE(finder.Tricks().empty());
  session.settings.showBestCards = true;
  EXPECT_TRUE(Find());
  EXPECT_EQ(solver.asked, 2);
}

}  // namespace
}  // namespace tricklet::ui
