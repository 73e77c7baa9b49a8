// Recorded plays, stepped through.
#include "play/replay.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "core/scoring.h"
#include "tests/support/calls.h"
#include "tests/support/plays.h"
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
    while (!play.Finished()) {
      record.cards.push_back(test::LegalCards(play).back());
      EXPECT_TRUE(play.Play(record.cards.back()));
      states.push_back(play.Now());
    }
  }
  void ExpectPlace(const Replay& replay, int shown) {
    EXPECT_EQ(replay.Shown(), shown);
    EXPECT_EQ(replay.Play().Now(), states.at(static_cast<std::size_t>(shown))) << shown;
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
    replay.GoTo(shown);
    ExpectPlace(replay, shown);
    replay.PreviousTrick();
    ExpectPlace(replay, std::max(shown - 1, 0) / 4 * 4);
    replay.GoTo(shown + 1);
  }
  EXPECT_EQ(replay.PlaceText(), "Card 52 of 52");
  replay.Forward();
  replay.GoTo(-1);
  replay.Back();
  EXPECT_FALSE(replay.ForwardBy(record.cards[1]));
  ExpectPlace(replay, 0);
  EXPECT_TRUE(replay.ForwardBy(record.cards[0]));
  ExpectPlace(replay, 1);
  EXPECT_EQ(host.beeps, 0);
}

TEST_F(ReplayTest, EndsOfRecords) {
  const std::string kPartScore = "P 1H X 2H P P P";
  const std::string kEnds = "Card 6 of 6: the record ends here";
  const std::string kUnplayable = "The record cannot be played: it lacks the deal or the contract";
  const Card first = record.cards[0];
  const std::string kIllegal = "Card 9 of 52: the record ends here, as " +
                               std::string(SeatName[*states[9].onPlay]) + " cannot play " +
                               CardText(first);
  const struct {
    std::size_t cards;
    std::optional<int> tricks;
    std::string auction;
    bool deal;
    std::string told;  // place and score
  } kCases[] = {{52, 8, kPartScore, true, kIllegal + "|2H= by West : EW +110"},
                {6, 10, kPartScore, true, kEnds + "|2H+2 by West : EW +170"},
                {6, {}, kPartScore, true, kEnds + "|"},
                {0, 7, kPartScore, true, "The play was not recorded|2H-1 by West : NS +100"},
                {0, {}, "P P P P", true, "Passed out|All Pass : 0"},
                {52, {}, "", true, kUnplayable + "|"},
                {52, {}, kPartScore, false, kUnplayable + "|"}};
  for (const auto& c : kCases) {
    RecordedPlay changed = record;
    changed.cards[9] = first;  // played already
    changed.cards.resize(c.cards);
    changed.tricks = c.tricks;
    test::SetAuction(changed.board, c.auction);
    if (!c.deal) changed.board.hands = HandTable();
    Replay replay(changed, host);
    while (replay.ForwardEnabled()) replay.NextTrick();
    EXPECT_EQ(replay.PlaceText() + "|" + replay.ScoreText(), c.told);
  }
  EXPECT_EQ(host.beeps, 0);
}

}  // namespace
}  // namespace tricklet
