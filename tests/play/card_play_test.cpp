#include "play/card_play.h"

#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

#include "generate/deal.h"
#include "tests/support/calls.h"
#include "tests/support/hands.h"
#include "tests/support/scripted_host.h"
#include "tests/support/thorough.h"

namespace tricklet {
namespace {

using test::ScriptedHost;

class ManualTimer : public TrickTimer {
 public:
  void Start(std::chrono::milliseconds delay) override {
    EXPECT_EQ(delay, kTrickDelay);
    running = true;
  }
  void Stop() override { running = false; }
  bool running = false;
};

/// The laws of play (44), stated over the plain list of the cards played.
struct Referee {
  const Board& board;
  HandTable left = board.hands;
  std::vector<std::pair<Seat, Card>> played{};

  void Play(Seat seat, Card card) {
    left[seat][card.suit].Remove(card.rank);
    played.emplace_back(seat, card);
  }

  Seat ToPlay() const {
    if (played.size() % 4 != 0) return SeatAfter(played.back().first);
    return played.empty() ? SeatAfter(board.declarer) : WinnerOfTrick(played.size() / 4 - 1);
  }
  Seat WinnerOfTrick(std::size_t trick) const {
    const auto begin = played.begin() + static_cast<std::ptrdiff_t>(trick * 4);
    const auto power = [&](const std::pair<Seat, Card>& play) {
      const int height = 12 - IndexOf(play.second.rank);
      if (ToStrain(play.second.suit) == board.trumps) return 200 + height;
      return play.second.suit == begin->second.suit ? 100 + height : 0;
    };
    return std::max_element(begin, begin + 4,
                            [&](const auto& a, const auto& b) { return power(a) < power(b); })
        ->first;
  }
  bool Legal(Card card) const {
    const auto& hand = left[ToPlay()];
    if (!hand[card.suit].Has(card.rank)) return false;
    if (played.size() % 4 == 0) return true;
    const Suit led = played[played.size() - played.size() % 4].second.suit;
    return card.suit == led || hand[led].Empty();
  }
  int TricksOf(Side side) const {
    int won = 0;
    for (std::size_t trick = 0; trick < played.size() / 4; ++trick) {
      if (SideOf(WinnerOfTrick(trick)) == side) ++won;
    }
    return won;
  }
};

void ClaimAndTakeBack(CardPlay& play) {
  const PlayState before = play.Now();
  const Side side = SideOf(*before.onPlay);
  play.Claim();
  ASSERT_TRUE(play.Finished());
  ASSERT_EQ(play.Now().tricksWon[side], before.tricksWon[side] + kTricks - before.tricksPlayed);
  ASSERT_TRUE(std::all_of(play.Now().trickSides.begin() + before.tricksPlayed,
                          play.Now().trickSides.end(), [side](Side each) { return each == side; }));
  play.Undo();
  ASSERT_EQ(play.Now(), before);
}

TEST(CardPlay, RandomPlayoutsAgreeWithAnIndependentReferee) {
  RandomSource random(5);
  for (int deal = 0; deal < test::Repetitions(10000); ++deal) {
    Board board;
    ASSERT_TRUE(Random(board.hands, random));
    board.contractLevel = 1;
    board.trumps = static_cast<Strain>(deal % 5);
    board.declarer = static_cast<Seat>(deal % 4);
    ScriptedHost host;
    ManualTimer timer;
    CardPlay play(board, host, timer);
    ASSERT_TRUE(play.Start());
    std::vector<PlayState> states{play.Now()};
    Referee referee{board};
    while (!play.Finished()) {
      std::vector<Card> legal;
      for (int index = 0; index < kCardsInPack; ++index) {
        const Card card = Card::FromIndex(index);
        ASSERT_EQ(play.IsLegal(card), referee.Legal(card)) << "deal " << deal;
        if (play.IsLegal(card)) legal.push_back(card);
      }
      const Seat seat = referee.ToPlay();
      ASSERT_EQ(play.Now().onPlay, seat);
      ASSERT_EQ(play.OnlyLegalCard(), legal.size() == 1 ? std::optional(legal[0]) : std::nullopt);
      if (random.Below(8) == 0) {
        ASSERT_NO_FATAL_FAILURE(ClaimAndTakeBack(play));
      }
      const Card card = legal[random.Below(static_cast<std::uint32_t>(legal.size()))];
      ASSERT_TRUE(play.Play(card));
      referee.Play(seat, card);
      states.push_back(play.Now());
      ASSERT_EQ(timer.running, referee.played.size() % 4 == 0);
      if (timer.running && random.Below(2) == 0) play.QuitTrick();  // else the next card gathers it
    }
    for (const Side side : {Side::NorthSouth, Side::EastWest}) {
      ASSERT_EQ(play.Now().tricksWon[side], referee.TricksOf(side));
    }
    for (; !states.empty(); states.pop_back()) {
      if (states.size() <= kCardsInPack) {
        ASSERT_EQ(play.Now(), states.back());
      }
      play.Undo();
      ASSERT_FALSE(timer.running);
    }
    ASSERT_FALSE(play.UndoEnabled());
  }
}

class PlayTest : public testing::Test {
 protected:
  PlayTest() {
    board.hands = test::OneSuitEach();
    test::SetAuction(board, "1NT Pass Pass Pass");
  }
  void PlayAll(std::initializer_list<Suit> suits) {
    for (const Suit suit : suits) ASSERT_TRUE(play.Play({suit, Rank::Two}));
  }

  Board board;
  ScriptedHost host;
  ManualTimer timer;
  CardPlay play{board, host, timer};
};

TEST_F(PlayTest, StartsWithAContractAndAFullDeal) {
  test::SetAuction(board, "");
  EXPECT_TRUE(CardPlay::NeedsAuction(board));
  EXPECT_FALSE(play.Start());
  test::SetAuction(board, "P P P P");
  EXPECT_TRUE(CardPlay::NeedsAuction(board));
  host.ExpectTell("The bidding was All Pass");
  EXPECT_FALSE(play.Start());
  test::SetAuction(board, "1NT Pass Pass Pass");
  EXPECT_FALSE(CardPlay::NeedsAuction(board));
  board.hands[Seat::North][Suit::Spades].Remove(Rank::Two);
  EXPECT_FALSE(play.Start());
  EXPECT_FALSE(board.playMode);
  board.hands[Seat::North][Suit::Spades].Add(Rank::Two);
  EXPECT_TRUE(play.Start());
  EXPECT_EQ(play.ClaimCaption(), "Claim by East");
  EXPECT_EQ(play.TricksText(Side::NorthSouth), "NS: 0");
}

TEST_F(PlayTest, OnlyACardThatSomebodyHoldsBeepsWhenItIsRefused) {
  ASSERT_TRUE(play.Start());
  EXPECT_FALSE(play.Play({Suit::Spades, Rank::Ace}));  // not on play
  EXPECT_EQ(host.beeps, 1);
  PlayAll({Suit::Hearts});
  EXPECT_FALSE(play.Play({Suit::Hearts, Rank::Two})) << "it is on the table already";
  EXPECT_EQ(host.beeps, 1);
  EXPECT_EQ(play.Now().cardsInTrick, 1);
}

TEST_F(PlayTest, AClaimTakesTheRest) {
  ASSERT_TRUE(play.Start());
  play.Claim();
  EXPECT_EQ(play.ScoreText(), "1NT-7 by North : EW +350");
  EXPECT_FALSE(play.ClaimEnabled());
  EXPECT_EQ(play.ClaimCaption(), "Claim");
  EXPECT_FALSE(play.Play({Suit::Hearts, Rank::Two}));

  ASSERT_TRUE(play.Start());
  PlayAll({Suit::Hearts, Suit::Diamonds, Suit::Clubs});
  play.Claim();  // in mid-trick, by North
  EXPECT_EQ(play.ScoreText(), "1NT+6 by North : NS +270");
  EXPECT_EQ(play.UndoTop(), 4);
  play.Undo();
  EXPECT_EQ(play.ScoreText(), "");
}

TEST_F(PlayTest, LeavingTheBoardEndsThePlay) {
  ASSERT_TRUE(play.Start());
  PlayAll({Suit::Hearts});
  ClearAll(board);
  EXPECT_FALSE(play.PlayMode());
  EXPECT_FALSE(play.Play({Suit::Diamonds, Rank::Two}));
  EXPECT_FALSE(play.UndoEnabled());
  play.QuitTrick();
  EXPECT_EQ(play.ScoreText(), "");
}

TEST_F(PlayTest, EditingAsksOnlyInMidPlay) {
  const std::string question = "Confirm that you wish to edit this hand";
  EXPECT_TRUE(play.EndForEditing()) << "no play";
  ASSERT_TRUE(play.Start());
  EXPECT_TRUE(play.EndForEditing()) << "no card yet";
  EXPECT_FALSE(play.PlayMode());
  ASSERT_TRUE(play.Start());
  PlayAll({Suit::Hearts});
  host.ExpectAsk(question, "Tricklet", Answer::No);
  EXPECT_FALSE(play.EndForEditing());
  EXPECT_EQ(play.Now().cardsInTrick, 1);
  play.Claim();
  EXPECT_TRUE(play.EndForEditing()) << "nothing is left to be played";
  ASSERT_TRUE(play.Start());
  PlayAll({Suit::Hearts, Suit::Diamonds, Suit::Clubs, Suit::Spades});
  EXPECT_TRUE(timer.running);
  host.ExpectAsk(question, "Tricklet", Answer::Yes);
  EXPECT_TRUE(play.EndForEditing());
  EXPECT_FALSE(play.PlayMode());
  EXPECT_FALSE(timer.running);
}

}  // namespace
}  // namespace tricklet
