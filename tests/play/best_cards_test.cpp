#include "play/best_cards.h"

#include <algorithm>
#include <numeric>
#include <random>

#include <gtest/gtest.h>

#include "analysis/solver_library.h"
#include "tests/support/calls.h"
#include "tests/support/scripted_host.h"

namespace tricklet {
namespace {

std::vector<Card> Legal(const CardPlay& play) {
  std::vector<Card> cards;
  for (int index = 0; index < kCardsInPack; ++index) {
    if (play.IsLegal(Card::FromIndex(index))) cards.push_back(Card::FromIndex(index));
  }
  return cards;
}

/// Tricks of North-South in the end when both sides go on as well as can be, tried card by card.
int TricksByTrying(CardPlay& play) {
  if (play.Finished()) return play.Now().tricksWon[Side::NorthSouth];
  const bool ours = SideOf(*play.Now().onPlay) == Side::NorthSouth;
  int best = ours ? 0 : kTricks;
  for (const Card card : Legal(play)) {
    play.Play(card);
    const int tricks = TricksByTrying(play);
    best = ours ? std::max(best, tricks) : std::min(best, tricks);
    play.Undo();
  }
  return best;
}

class BestCardsTest : public testing::Test {
 protected:
  void Deal(std::mt19937& random, const char* auction) {
    std::vector<int> pack(kCardsInPack);
    std::iota(pack.begin(), pack.end(), 0);
    std::shuffle(pack.begin(), pack.end(), random);
    board = Board();
    for (std::size_t i = 0; i < pack.size(); ++i) {
      AddCard(board.hands, Card::FromIndex(pack[i]), static_cast<Seat>(i % 4));
    }
    test::SetAuction(board, auction);
    ASSERT_TRUE(play.Start());
  }
  void PlayAny(std::mt19937& random) {
    const std::vector<Card> cards = Legal(play);
    ASSERT_FALSE(cards.empty());
    ASSERT_TRUE(play.Play(cards[random() % cards.size()]));
  }

  Board board;
  test::ScriptedHost host;
  NoTimer timer;
  CardPlay play{board, host, timer};
};

TEST_F(BestCardsTest, AgreeWithTryingEveryCardInTheLastTricks) {
  const auto solver = LoadSolver({});
  ASSERT_EQ(solver->Missing(), "");
  std::mt19937 random(20);
  constexpr int kLastCards = 12;  // three tricks
  for (int deal = 0; deal < 20; ++deal) {
    const char* const auctions[] = {"1NT P P P", "1S P P P", "1H P P P", "P 1D P P P",
                                    "P 1C P P P"};
    ASSERT_NO_FATAL_FAILURE(Deal(random, auctions[deal % 5]));
    while (play.UndoTop() < kCardsInPack - kLastCards) ASSERT_NO_FATAL_FAILURE(PlayAny(random));
    for (; !play.Finished(); PlayAny(random)) {
      const Side side = SideOf(*play.Now().onPlay);
      const auto position = PositionOf(play.Now(), board.trumps);
      ASSERT_TRUE(position);
      const auto scores = BestCards(*solver, *position, play.Now().tricksWon[side]);
      ASSERT_EQ(scores.size(), Legal(play).size());
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
