// Recorded plays, stepped through.
#include "play/replay.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "core/scoring.h"
#include "generate/deal.h"
#include "tests/support/calls.h"
#include "tests/support/scripted_host.h"

namespace tricklet {
namespace {

class ReplayTest : public testing::Test {
 protected:
  /// Board 3, dealt at random and played by the rules.
  ReplayTest() {
    Board& board = record.board;
    board.boardNumber = 3;
    RandomSource random(1);
    Random(board.hands, random);
    test::SetAuction(board, "P 1H X 2H P P P");
    NoTimer timer;
    Board copy = board;
    CardPlay play(copy, host, timer);
    EXPECT_TRUE(play.Start());
    record.tricks = 0;  // a replay of all cards knows better
    states.push_back(play.Now());
    for (int step = 0; !play.Finished(); step += 17) {
      const Card card = Card::FromIndex(step % kCardsInPack);
      if (!play.IsLegal(card)) continue;
      EXPECT_TRUE(play.Play(card));
      record.cards.push_back(card);
      states.push_back(play.Now());
    }
  }
  void ExpectPlace(const Replay& replay, int shown) {
    ASSERT_EQ(replay.Shown(), shown);
    const PlayState& expected = states.at(static_cast<std::size_t>(shown));
    EXPECT_EQ(replay.Play().Now().cardsLeft, expected.cardsLeft) << shown;
    EXPECT_EQ(replay.Play().Now().onPlay, expected.onPlay) << shown;
    EXPECT_EQ(replay.Play().Now().tricksWon, expected.tricksWon) << shown;
  }

  test::ScriptedHost host;
  RecordedPlay record;
  std::vector<PlayState> states;  // after each card
};

TEST_F(ReplayTest, StepsByCardsAndByTricksFromEveryPlace) {
  const std::string result = ResultLine(record.board, states.back().tricksWon[Side::EastWest]);
  Replay replay(record, host);
  for (int shown = 0; shown <= kCardsInPack; ++shown) {
    ExpectPlace(replay, shown);
    EXPECT_EQ(replay.BackEnabled(), shown > 0);
    EXPECT_EQ(replay.ForwardEnabled(), shown < kCardsInPack);
    EXPECT_EQ(replay.ScoreText(), shown < kCardsInPack ? "" : result);
    replay.NextTrick();
    ExpectPlace(replay, std::min(shown / 4 * 4 + 4, kCardsInPack));
    while (replay.Shown() > shown) replay.Back();
    ExpectPlace(replay, shown);
    replay.PreviousTrick();
    ExpectPlace(replay, std::max(shown - 1, 0) / 4 * 4);
    while (replay.Shown() <= shown && replay.ForwardEnabled()) replay.Forward();
  }
  EXPECT_EQ(replay.PlaceText(), "Card 52 of 52");
  replay.Forward();
  while (replay.BackEnabled()) replay.Back();
  replay.Back();
  EXPECT_FALSE(replay.ForwardBy(record.cards[1]));
  ExpectPlace(replay, 0);
  EXPECT_TRUE(replay.ForwardBy(record.cards[0]));
  ExpectPlace(replay, 1);
  EXPECT_EQ(host.beeps, 0);
}

TEST_F(ReplayTest, StopsAtACardThatBreaksTheRules) {
  record.cards[9] = record.cards[0];  // played already
  Replay replay(record, host);
  for (int trick = 0; trick < 5; ++trick) replay.NextTrick();
  ExpectPlace(replay, 9);
  EXPECT_FALSE(replay.ForwardEnabled());
  EXPECT_EQ(replay.PlaceText(), "Card 9 of 52: the record ends here, as " +
                                    std::string(SeatName[*states[9].onPlay]) + " cannot play " +
                                    CardText(record.cards[0]));
  EXPECT_EQ(host.beeps, 0);
}

TEST_F(ReplayTest, EndsOfRecords) {
  const std::string kPartScore = "P 1H X 2H P P P";
  const std::string kEnds = "Card 6 of 6: the record ends here";
  const std::string kUnplayable = "The record cannot be played: it lacks the deal or the contract";
  const struct {
    std::size_t cards;
    std::optional<int> tricks;
    std::string auction;
    bool deal;
    std::string told;  // place and score
  } kCases[] = {{6, 10, kPartScore, true, kEnds + "|2H+2 by West : EW +170"},
                {6, {}, kPartScore, true, kEnds + "|"},
                {0, 7, kPartScore, true, "The play was not recorded|2H-1 by West : NS +100"},
                {0, {}, "P P P P", true, "Passed out|All Pass : 0"},
                {52, {}, "", true, kUnplayable + "|"},
                {52, {}, kPartScore, false, kUnplayable + "|"}};
  for (const auto& c : kCases) {
    RecordedPlay changed = record;
    changed.cards.resize(c.cards);
    changed.tricks = c.tricks;
    test::SetAuction(changed.board, c.auction);
    if (!c.deal) changed.board.hands = HandTable();
    Replay replay(changed, host);
    while (replay.ForwardEnabled()) replay.Forward();
    EXPECT_EQ(replay.PlaceText() + "|" + replay.ScoreText(), c.told);
  }
}

}  // namespace
}  // namespace tricklet
