#include "play/best_cards.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "analysis/solver_library.h"
#include "tests/support/plays.h"
#include "tests/support/scripted_host.h"
#include "tests/support/thorough.h"

namespace tricklet {
namespace {

void PlayAny(CardPlay& play, RandomSource& random) {
  const std::vector<Card> cards = test::LegalCards(play);
  ASSERT_TRUE(play.Play(cards[random.Below(static_cast<std::uint32_t>(cards.size()))]));
}

/// Tricks of North-South in the end when both sides go on as well as can be, tried card by card.
int TricksByTrying(CardPlay& play) {
  if (play.Finished()) return play.Now().tricksWon[Side::NorthSouth];
  const bool ours = SideOf(*play.Now().onPlay) == Side::NorthSouth;
  int best = ours ? 0 : kTricks;
  for (const Card card : test::LegalCards(play)) {
    play.Play(card);
    const int tricks = TricksByTrying(play);
    best = ours ? std::max(best, tricks) : std::min(best, tricks);
    play.Undo();
  }
  return best;
}

TEST(BestCards, AgreeWithTryingEveryCardInTheLastTricks) {
  const auto solver = LoadSolver({});
  ASSERT_EQ(solver->Missing(), "");
  RandomSource random(20);
  constexpr int kLastCards = 12;  // three tricks
  for (int deal = 0; deal < test::Repetitions(50); ++deal) {
    Board board = test::RandomBoard(deal, random);
    test::ScriptedHost host;
    NoTimer timer;
    CardPlay play(board, host, timer);
    ASSERT_TRUE(play.Start());
    while (play.UndoTop() < kCardsInPack - kLastCards) PlayAny(play, random);
    for (; !play.Finished(); PlayAny(play, random)) {
      const Side side = SideOf(*play.Now().onPlay);
      const auto position = PositionOf(play.Now(), board.trumps);
      ASSERT_TRUE(position);
      const auto scores = BestCards(*solver, *position, play.Now().tricksWon[side]);
      ASSERT_EQ(scores.size(), test::LegalCards(play).size());
      for (const CardScore& score : scores) {
        ASSERT_TRUE(play.Play(score.card));
        const int ours = TricksByTrying(play);
        EXPECT_EQ(score.tricks, side == Side::NorthSouth ? ours : kTricks - ours)
            << "deal " << deal << ", card " << play.UndoTop();
        play.Undo();
      }
    }
    EXPECT_FALSE(PositionOf(play.Now(), board.trumps));
  }
}

}  // namespace
}  // namespace tricklet
