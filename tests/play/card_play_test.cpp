#include "play/card_play.h"

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/calls.h"
#include "tests/support/scripted_host.h"

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

Board RandomBoard(std::mt19937& random, Strain trumps, Seat declarer) {
  std::vector<int> pack(kCardsInPack);
  std::iota(pack.begin(), pack.end(), 0);
  std::shuffle(pack.begin(), pack.end(), random);
  Board board;
  for (std::size_t i = 0; i < pack.size(); ++i) {
    AddCard(board.hands, Card::FromIndex(pack[i]), static_cast<Seat>(i % 4));
  }
  board.calls.Add(Call::Bid(1, ToBidStrain(trumps)));
  board.contract = "1X";
  board.contractLevel = 1;
  board.trumps = trumps;
  board.declarer = declarer;
  return board;
}

/// The laws of play (44), stated over the plain list of the cards played.
struct Referee {
  const Board& board;
  std::vector<std::pair<Seat, Card>> played;

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
  bool Holds(Seat seat, Card card) const {
    return board.hands[seat][card.suit].Has(card.rank) &&
           std::none_of(played.begin(), played.end(),
                        [card](const auto& play) { return play.second == card; });
  }
  bool Legal(Card card) const {
    const Seat seat = ToPlay();
    if (!Holds(seat, card)) return false;
    if (played.size() % 4 == 0) return true;
    const Suit led = played[played.size() - played.size() % 4].second.suit;
    if (card.suit == led) return true;
    for (int rank = 0; rank < kRanks; ++rank) {
      if (Holds(seat, {led, static_cast<Rank>(rank)})) return false;
    }
    return true;
  }
  int TricksOf(Side side) const {
    int won = 0;
    for (std::size_t trick = 0; trick < played.size() / 4; ++trick) {
      if (SideOf(WinnerOfTrick(trick)) == side) ++won;
    }
    return won;
  }
};

TEST(CardPlay, RandomPlayoutsAgreeWithAnIndependentReferee) {
  std::mt19937 random(5);
  for (int deal = 0; deal < 10000; ++deal) {
    Board board = RandomBoard(random, static_cast<Strain>(deal % 5), static_cast<Seat>(deal % 4));
    ScriptedHost host;
    ManualTimer timer;
    CardPlay play(board, host, timer);
    ASSERT_TRUE(play.Start());
    const PlayState atStart = play.Now();
    Referee referee{board, {}};
    while (!play.Finished()) {
      std::vector<Card> legal;
      for (int index = 0; index < kCardsInPack; ++index) {
        const Card card = Card::FromIndex(index);
        ASSERT_EQ(play.IsLegal(card), referee.Legal(card)) << "deal " << deal;
        if (play.IsLegal(card)) legal.push_back(card);
      }
      ASSERT_EQ(play.Now().onPlay, referee.ToPlay());
      const Card card = legal[random() % legal.size()];
      const Seat seat = referee.ToPlay();
      ASSERT_TRUE(play.Play(card));
      referee.played.emplace_back(seat, card);
      ASSERT_EQ(timer.running, referee.played.size() % 4 == 0);
      if (timer.running && random() % 2 == 0) play.QuitTrick();  // else the next card gathers it
    }
    for (const Side side : {Side::NorthSouth, Side::EastWest}) {
      ASSERT_EQ(play.Now().tricksWon[side], referee.TricksOf(side));
    }
    for (int card = 0; card < kCardsInPack; ++card) play.Undo();
    ASSERT_EQ(play.Now(), atStart);
    ASSERT_FALSE(play.UndoEnabled());
  }
}

class PlayTest : public testing::Test {
 protected:
  PlayTest() : play(board, host, timer) {
    // North holds all spades, East all hearts, South all diamonds, West all clubs.
    for (const Seat seat : kAllSeats) {
      board.hands[seat][static_cast<Suit>(seat)] = Holding::FromBits(Holding::kAllBits);
    }
    test::SetAuction(board, "1NT Pass Pass Pass");
  }
  Board board;
  ScriptedHost host;
  ManualTimer timer;
  CardPlay play;
};

TEST_F(PlayTest, StartsWithTheOpeningLead) {
  EXPECT_TRUE(play.Start());
  EXPECT_EQ(play.Now().onPlay, Seat::East);
  EXPECT_EQ(play.ClaimCaption(), "Claim by East");
  EXPECT_EQ(play.TricksText(Side::NorthSouth), "NS: 0");
  EXPECT_EQ(play.ScoreText(), "");
}

TEST_F(PlayTest, DoesNotStartWithoutAContractOrAFullDeal) {
  test::SetAuction(board, "");
  EXPECT_TRUE(CardPlay::NeedsAuction(board));
  EXPECT_FALSE(play.Start());
  test::SetAuction(board, "Pass Pass Pass Pass");
  EXPECT_TRUE(CardPlay::NeedsAuction(board));
  host.ExpectTell("The bidding was All Pass");
  EXPECT_FALSE(play.Start());
  test::SetAuction(board, "1NT Pass Pass Pass");
  EXPECT_FALSE(CardPlay::NeedsAuction(board));
  board.hands[Seat::North][Suit::Spades].Remove(Rank::Two);
  EXPECT_FALSE(play.Start());
  EXPECT_FALSE(board.playMode);
}

TEST_F(PlayTest, IllegalCardsBeepAndChangeNothing) {
  ASSERT_TRUE(play.Start());
  EXPECT_FALSE(play.Play({Suit::Spades, Rank::Ace}));  // not on play
  EXPECT_EQ(host.beeps, 1);
  EXPECT_TRUE(play.Play({Suit::Hearts, Rank::Two}));
  EXPECT_FALSE(play.Play({Suit::Hearts, Rank::Two})) << "it is on the table already";
  EXPECT_EQ(host.beeps, 1);
  EXPECT_EQ(play.Now().cardsInTrick, 1);
}

TEST_F(PlayTest, UndoOfALeadShowsTheTrickBefore) {
  ASSERT_TRUE(play.Start());
  for (const Suit suit : {Suit::Hearts, Suit::Diamonds, Suit::Clubs, Suit::Spades}) {
    ASSERT_TRUE(play.Play({suit, Rank::Ace}));
  }
  EXPECT_EQ(play.Now().onPlay, Seat::East) << "nobody could follow";
  play.QuitTrick();
  EXPECT_TRUE(play.Now().trickGathered);
  EXPECT_FALSE(play.Now().trickCards[Seat::East]);
  ASSERT_TRUE(play.Play({Suit::Hearts, Rank::King}));
  play.Undo();
  EXPECT_EQ(play.Now().trickCards[Seat::East], (Card{Suit::Hearts, Rank::Ace}));
  EXPECT_EQ(play.Now().onPlay, Seat::East);
  EXPECT_EQ(play.Now().tricksPlayed, 1);
  play.Undo();
  EXPECT_EQ(play.Now().tricksPlayed, 0);
  EXPECT_EQ(play.Now().cardsInTrick, 3);
  EXPECT_EQ(play.Now().onPlay, Seat::North);
}

TEST_F(PlayTest, AClaimTakesTheRestForTheSideOnPlay) {
  ASSERT_TRUE(play.Start());
  play.Claim();
  EXPECT_EQ(play.Now().tricksWon[Side::EastWest], 13);
  EXPECT_EQ(play.ScoreText(), "1NT-7 by North : EW +350");
  EXPECT_FALSE(play.ClaimEnabled());
  EXPECT_FALSE(play.UndoEnabled());
  EXPECT_FALSE(play.Play({Suit::Hearts, Rank::Two}));

  ASSERT_TRUE(play.Start());
  for (const Suit suit : {Suit::Hearts, Suit::Diamonds, Suit::Clubs}) {
    ASSERT_TRUE(play.Play({suit, Rank::Two}));
  }
  play.Claim();  // in mid-trick, by North
  EXPECT_EQ(play.Now().tricksWon[Side::NorthSouth], 13);
  EXPECT_EQ(play.ScoreText(), "1NT+6 by North : NS +270");
}

TEST_F(PlayTest, LeavingTheBoardEndsThePlay) {
  ASSERT_TRUE(play.Start());
  ASSERT_TRUE(play.Play({Suit::Hearts, Rank::Two}));
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
  ASSERT_TRUE(play.Play({Suit::Hearts, Rank::Two}));
  host.ExpectAsk(question, "Tricklet", Answer::No);
  EXPECT_FALSE(play.EndForEditing());
  EXPECT_EQ(play.Now().cardsInTrick, 1);
  play.Claim();
  EXPECT_TRUE(play.EndForEditing()) << "nothing is left to be played";
  ASSERT_TRUE(play.Start());
  for (const Suit suit : {Suit::Hearts, Suit::Diamonds, Suit::Clubs, Suit::Spades}) {
    ASSERT_TRUE(play.Play({suit, Rank::Two}));
  }
  EXPECT_TRUE(timer.running);
  host.ExpectAsk(question, "Tricklet", Answer::Yes);
  EXPECT_TRUE(play.EndForEditing());
  EXPECT_FALSE(play.PlayMode());
  EXPECT_FALSE(timer.running);
}

int CardsOf(const Board& board, Seat seat) {
  int count = 0;
  for (const Holding holding : board.hands[seat]) count += holding.Count();
  return count;
}

/// Deals the rest of the pack so that nobody but North, and who follows suit to `cards`, holds the
/// suit led.
void FillHands(Board& board, const std::array<Card, 4>& cards) {
  const Suit led = cards[0].suit;
  for (const bool ledSuit : {true, false}) {
    for (int index = 0; index < kCardsInPack; ++index) {
      const Card card = Card::FromIndex(index);
      if ((card.suit == led) != ledSuit || SeatHolding(board.hands, card) >= 0) continue;
      for (const Seat seat : kAllSeats) {
        const bool follows = cards.at(static_cast<std::size_t>(seat)).suit == led;
        if (CardsOf(board, seat) == kCardsInHand || (ledSuit && !follows)) continue;
        AddCard(board.hands, card, seat);
        break;
      }
    }
  }
}

TEST(CardPlayTrick, TrumpsAndRuffs) {
  // One trick: four cards from North round, spades are trumps unless told otherwise.
  const struct {
    Strain trumps;
    std::array<const char*, 4> cards;  // suit letter and rank index in text
    Seat winner;
  } kCases[] = {
      {Strain::Spades, {"H5", "HK", "HQ", "HA"}, Seat::West},
      {Strain::Spades, {"HA", "S2", "H3", "H4"}, Seat::East},
      {Strain::Spades, {"HK", "S2", "HA", "S3"}, Seat::West},   // a ruff is over-ruffed
      {Strain::Spades, {"HK", "S3", "HA", "S2"}, Seat::East},   // and under-ruffed
      {Strain::Spades, {"S9", "S2", "S10", "SJ"}, Seat::West},  // led in trumps: the highest
      {Strain::Spades, {"S9", "S2", "S3", "HA"}, Seat::North},  // a lower trump does not win
      {Strain::NoTrump, {"C2", "SA", "HA", "DA"}, Seat::North},
      {Strain::Hearts, {"D2", "CA", "SA", "H2"}, Seat::West},
  };
  for (const auto& c : kCases) {
    Board board;
    std::array<Card, 4> cards{};
    for (std::size_t i = 0; i < 4; ++i) {
      const std::string text = c.cards.at(i);
      cards.at(i) = {static_cast<Suit>(std::string("SHDC").find(text[0])),
                     static_cast<Rank>(std::string("AKQJ198765432").find(text[1]))};
      AddCard(board.hands, cards.at(i), static_cast<Seat>(i));
    }
    FillHands(board, cards);
    board.calls.Add(Call::Bid(1, ToBidStrain(c.trumps)));
    board.contract = "1";
    board.contractLevel = 1;
    board.trumps = c.trumps;
    board.declarer = Seat::West;
    ScriptedHost host;
    ManualTimer timer;
    CardPlay play(board, host, timer);
    ASSERT_TRUE(play.Start()) << c.cards[0];
    for (const Card card : cards) ASSERT_TRUE(play.Play(card)) << c.cards[0];
    EXPECT_EQ(play.Now().trickWinner, c.winner) << c.cards[0] << c.cards[1];
  }
}

}  // namespace
}  // namespace tricklet
