#include "play/card_play.h"

#include <algorithm>
#include <functional>
#include <vector>

#include <gtest/gtest.h>

#include "play/played_record.h"
#include "tests/support/calls.h"
#include "tests/support/hands.h"
#include "tests/support/plays.h"
#include "tests/support/scripted_host.h"
#include "tests/support/thorough.h"

namespace tricklet {
namespace {

class ManualTimer : public TrickTimer {
 public:
  void Start(std::chrono::milliseconds delay) override {
    EXPECT_EQ(delay, kTrickDelay);
    running = true;
  }
  void Stop() override { running = false; }
  bool running = false;
};

/// The laws of play (44).
struct Referee {
  const Board& board;
  HandTable left = board.hands;
  Seat toPlay = SeatAfter(board.declarer);
  std::vector<Card> trick{};
  PerSide<int> tricksWon{};

  PerSuit<Holding> LegalCards() const {
    const PerSuit<Holding>& hand = left[toPlay];
    if (trick.empty() || hand[trick[0].suit].Empty()) return hand;
    PerSuit<Holding> following;
    following[trick[0].suit] = hand[trick[0].suit];
    return following;
  }
  void Play(Card card) {
    left[toPlay][card.suit].Remove(card.rank);
    trick.push_back(card);
    toPlay = SeatAfter(toPlay);
    if (trick.size() < 4) return;
    const auto power = [this](Card each) {
      const int height = 12 - IndexOf(each.rank);
      if (ToStrain(each.suit) == board.trumps) return 200 + height;
      return each.suit == trick[0].suit ? 100 + height : 0;
    };
    const auto best = std::max_element(trick.begin(), trick.end(),
                                       [&](Card a, Card b) { return power(a) < power(b); });
    toPlay = SeatAfter(toPlay, static_cast<int>(best - trick.begin()));
    ++tricksWon[SideOf(toPlay)];
    trick.clear();
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
    Board board = test::RandomBoard(deal, random);
    test::ScriptedHost host;
    ManualTimer timer;
    CardPlay play(board, host, timer);
    ASSERT_TRUE(play.Start());
    std::vector<PlayState> states{play.Now()};
    Referee referee{board};
    while (!play.Finished()) {
      ASSERT_EQ(play.Now().onPlay, referee.toPlay) << "deal " << deal;
      ASSERT_EQ(play.LegalCards(), referee.LegalCards()) << "deal " << deal;
      const std::vector<Card> legal = test::LegalCards(play);
      ASSERT_EQ(play.OnlyLegalCard(), legal.size() == 1 ? std::optional(legal[0]) : std::nullopt);
      if (random.Below(8) == 0) {
        ASSERT_NO_FATAL_FAILURE(ClaimAndTakeBack(play));
      }
      const Card card = legal[random.Below(static_cast<std::uint32_t>(legal.size()))];
      ASSERT_TRUE(play.Play(card));
      referee.Play(card);
      states.push_back(play.Now());
      ASSERT_EQ(timer.running, referee.trick.empty());
      if (timer.running && random.Below(2) == 0) play.QuitTrick();  // else the next card gathers it
    }
    ASSERT_EQ(play.Now().tricksWon, referee.tricksWon);
    for (states.pop_back(); !states.empty(); states.pop_back()) {
      play.Undo();
      ASSERT_EQ(play.Now(), states.back());
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
  test::ScriptedHost host;
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
  PlayAll({Suit::Hearts, Suit::Diamonds});
  play.Claim();  // in mid-trick, by West
  EXPECT_EQ(play.ScoreText(), "1NT-7 by North : EW +350");
  EXPECT_FALSE(play.ClaimEnabled());
  EXPECT_EQ(play.ClaimCaption(), "Claim");
  EXPECT_FALSE(play.Play({Suit::Hearts, Rank::Ace}));
}

TEST_F(PlayTest, LeavingTheBoardEndsThePlay) {
  ASSERT_TRUE(play.Start());
  PlayAll({Suit::Hearts});
  ClearAll(board);
  EXPECT_FALSE(play.PlayMode());
  EXPECT_FALSE(play.Play({Suit::Diamonds, Rank::Two}));
  EXPECT_FALSE(play.UndoEnabled());
}

TEST_F(PlayTest, EditingAsksOnlyInMidPlay) {
  const std::string question = "Confirm that you wish to edit this hand";
  EXPECT_TRUE(play.EndForEditing()) << "no play";
  ASSERT_TRUE(play.Start());
  EXPECT_TRUE(play.EndForEditing()) << "no card yet";
  ASSERT_TRUE(play.Start());
  PlayAll({Suit::Hearts});
  host.ExpectAsk(question, "Tricklet", Answer::No);
  EXPECT_FALSE(play.EndForEditing());
  EXPECT_EQ(play.Now().cardsInTrick, 1);
  play.Claim();
  EXPECT_TRUE(play.EndForEditing()) << "nothing is left to be played";
  ASSERT_TRUE(play.Start());
  PlayAll({Suit::Hearts, Suit::Diamonds, Suit::Clubs, Suit::Spades});
  host.ExpectAsk(question, "Tricklet", Answer::Yes);
  EXPECT_TRUE(play.EndForEditing());
  EXPECT_FALSE(play.PlayMode());
  EXPECT_FALSE(timer.running);
}

TEST_F(PlayTest, AClaimOfSomeTricksLeavesTheRestToTheOthers) {
  const struct {
    Side side;
    int tricks;
    int tricksOfNorthSouth;
  } kCases[] = {
      {Side::NorthSouth, 3, 3}, {Side::NorthSouth, 12, 12}, {Side::NorthSouth, 0, 0},
      {Side::EastWest, 1, 12},  {Side::EastWest, 13, 0},
  };
  for (const auto& each : kCases) {
    ASSERT_TRUE(play.Start());
    PlayAll({Suit::Hearts, Suit::Diamonds, Suit::Clubs, Suit::Spades});
    ASSERT_TRUE(play.Play({Suit::Hearts, Rank::Ace}));
    EXPECT_FALSE(play.ClaimTricks(Side::EastWest, 0)) << "they have one";
    EXPECT_FALSE(play.ClaimTricks(Side::NorthSouth, 13));
    const PlayState before = play.Now();
    ASSERT_TRUE(play.ClaimTricks(each.side, each.tricks));
    EXPECT_TRUE(play.Finished());
    EXPECT_EQ(play.Now().tricksWon[Side::NorthSouth], each.tricksOfNorthSouth);
    EXPECT_EQ(
        std::count(play.Now().trickSides.begin(), play.Now().trickSides.end(), Side::NorthSouth),
        each.tricksOfNorthSouth);
    EXPECT_FALSE(play.ClaimTricks(each.side, each.tricks)) << "nothing is left";
    play.Undo();
    EXPECT_EQ(play.Now(), before);
  }
}

TEST_F(PlayTest, GoesOnFromARecordInItsContract) {
  const Board stored = board;
  RecordedPlay record{board, {}, 13};
  test::SetAuction(record.board, "P 2D P P P");  // by East, where the board has 1NT by North
  for (const char* card : {"D2", "C2", "S2", "H2", "D3", "C3", "S4", "S3"}) {
    record.cards.push_back(test::CardOf(card));
  }
  ASSERT_TRUE(play.PlayOn(record, 5));
  EXPECT_EQ(play.UndoTop(), 5);
  EXPECT_EQ(play.Now().tricksWon[Side::NorthSouth], 1);
  EXPECT_EQ(play.Played().contract, "2D");
  EXPECT_TRUE(play.Play(test::CardOf("CA"))) << "another card than the record's";
  play.Claim();
  EXPECT_EQ(play.ScoreText().substr(0, 2), "2D");
  const std::vector<Card> made = RecordOfPlay(play).cards;
  EXPECT_EQ(made.size(), 6);
  EXPECT_EQ(made.back(), test::CardOf("CA"));
  while (play.UndoEnabled()) play.Undo();
  EXPECT_EQ(play.Now().onPlay, Seat::South);
  play.Stop();
  EXPECT_EQ(board.calls, stored.calls);
  EXPECT_EQ(board.contract, stored.contract);
  EXPECT_EQ(play.Played().contract, stored.contract);
  ASSERT_TRUE(play.PlayOn(record, 52));
  EXPECT_EQ(play.UndoTop(), 7) << "the eighth card is not East's";
  ASSERT_TRUE(play.Start());
  EXPECT_EQ(play.Played().contract, "1NT") << "the board's own again";
}

TEST_F(PlayTest, APlayOfAnotherDealIsNotTheBoards) {
  const struct {
    std::function<void(RecordedPlay&)> change;
    const char* message;
  } kCases[] = {
      {[](RecordedPlay& record) { test::SetAuction(record.board, "P P P P"); },
       "The board was passed out at this table"},
      {[](RecordedPlay& record) { test::SetAuction(record.board, ""); },
       "The record has no contract to play"},
      {[](RecordedPlay& record) { record.board.hands = {}; }, "The record has not all four hands"},
      {[](RecordedPlay& record) {
         std::swap(record.board.hands[Seat::North], record.board.hands[Seat::East]);
       },
       "The record is of another deal than the board"},
  };
  for (const auto& each : kCases) {
    RecordedPlay record{board, {}, {}};
    each.change(record);
    host.ExpectTell(each.message);
    EXPECT_FALSE(play.PlayOn(record, 0));
    EXPECT_FALSE(board.playMode);
  }
}

}  // namespace
}  // namespace tricklet
