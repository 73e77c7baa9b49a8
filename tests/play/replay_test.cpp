// Recorded plays, stepped through.
#include "play/replay.h"

#include <algorithm>
#include <numeric>
#include <random>

#include <gtest/gtest.h>

#include "core/scoring.h"
#include "tests/support/calls.h"
#include "tests/support/scripted_host.h"

namespace tricklet {
namespace {

/// Board 3, dealt at random and played at random by the rules; `states` are those after each card.
struct Played {
  RecordedPlay record;
  std::vector<PlayState> states;
};

Played PlayAtRandom(unsigned seed) {
  std::mt19937 random(seed);
  std::vector<int> pack(kCardsInPack);
  std::iota(pack.begin(), pack.end(), 0);
  std::shuffle(pack.begin(), pack.end(), random);
  Played played;
  Board& board = played.record.board;
  board.boardNumber = 3;
  for (std::size_t i = 0; i < pack.size(); ++i) {
    AddCard(board.hands, Card::FromIndex(pack[i]), static_cast<Seat>(i % 4));
  }
  test::SetAuction(board, "P 1H X 2H P P P");
  test::ScriptedHost host;
  NoTimer timer;
  Board copy = board;
  CardPlay play(copy, host, timer);
  EXPECT_TRUE(play.Start());
  played.states.push_back(play.Now());
  while (!play.Finished()) {
    std::shuffle(pack.begin(), pack.end(), random);
    const auto legal = std::find_if(
        pack.begin(), pack.end(), [&](int index) { return play.IsLegal(Card::FromIndex(index)); });
    const Card card = Card::FromIndex(*legal);
    EXPECT_TRUE(play.Play(card));
    played.record.cards.push_back(card);
    played.states.push_back(play.Now());
  }
  return played;
}

void ExpectPlace(const Replay& replay, const Played& played, int shown) {
  ASSERT_EQ(replay.Shown(), shown);
  const PlayState& expected = played.states.at(static_cast<std::size_t>(shown));
  EXPECT_EQ(replay.Play().Now().cardsLeft, expected.cardsLeft) << shown;
  EXPECT_EQ(replay.Play().Now().onPlay, expected.onPlay) << shown;
  EXPECT_EQ(replay.Play().Now().tricksWon, expected.tricksWon) << shown;
}

TEST(Replay, StepsThroughEveryCardAndBack) {
  test::ScriptedHost host;
  const Played played = PlayAtRandom(1);
  Replay replay(played.record, host);
  EXPECT_FALSE(replay.BackEnabled());
  for (int shown = 0; shown < kCardsInPack; ++shown) {
    ExpectPlace(replay, played, shown);
    EXPECT_EQ(replay.ScoreText(), "");
    replay.Forward();
  }
  EXPECT_FALSE(replay.ForwardEnabled());
  EXPECT_EQ(replay.PlaceText(), "Card 52 of 52");
  const int tricks = played.states.back().tricksWon[Side::EastWest];
  EXPECT_EQ(replay.ScoreText(), ResultLine(played.record.board, tricks));
  replay.Forward();
  ExpectPlace(replay, played, kCardsInPack);
  for (int shown = kCardsInPack; shown >= 0; --shown) {
    ExpectPlace(replay, played, shown);
    replay.Back();
  }
  EXPECT_EQ(host.beeps, 0);
}

TEST(Replay, StepsByTricks) {
  test::ScriptedHost host;
  const Played played = PlayAtRandom(2);
  Replay replay(played.record, host);
  for (int trick = 1; trick <= kTricks; ++trick) {
    replay.NextTrick();
    ExpectPlace(replay, played, 4 * trick);
  }
  replay.Back();
  replay.PreviousTrick();
  ExpectPlace(replay, played, 48);
  replay.PreviousTrick();
  ExpectPlace(replay, played, 44);
  replay.Forward();
  replay.NextTrick();
  ExpectPlace(replay, played, 48);
  for (int trick = 0; trick < 20; ++trick) replay.PreviousTrick();
  ExpectPlace(replay, played, 0);
}

TEST(Replay, FollowsTheRecordedCardOnly) {
  test::ScriptedHost host;
  const Played played = PlayAtRandom(3);
  Replay replay(played.record, host);
  EXPECT_FALSE(replay.Follow(played.record.cards[1]));
  ExpectPlace(replay, played, 0);
  EXPECT_TRUE(replay.Follow(played.record.cards[0]));
  ExpectPlace(replay, played, 1);
}

TEST(Replay, StopsAtACardThatBreaksTheRules) {
  test::ScriptedHost host;
  Played played = PlayAtRandom(4);
  std::vector<Card>& cards = played.record.cards;
  cards[9] = cards[0];  // played already
  Replay replay(played.record, host);
  for (int trick = 0; trick < 5; ++trick) replay.NextTrick();
  ExpectPlace(replay, played, 9);
  EXPECT_FALSE(replay.ForwardEnabled());
  const std::string text = replay.PlaceText();
  EXPECT_EQ(text.substr(0, text.find(':')), "Card 9 of 52");
  EXPECT_NE(text.find(" cannot play "), std::string::npos) << text;
  EXPECT_NE(text.find(SeatName[played.states[9].onPlay.value_or(Seat::North)]), std::string::npos)
      << text;
  EXPECT_EQ(host.beeps, 0);
}

TEST(Replay, EndsOfRecords) {
  struct Case {
    const char* what;
    void (*change)(RecordedPlay&);
    const char* place;
    const char* score;
  };
  constexpr Case kCases[] = {
      {"a claim",
       [](RecordedPlay& record) {
         record.cards.resize(6);
         record.tricks = 10;
       },
       "Card 6 of 6: the record ends here", "2H+2 by West : EW +170"},
      {"unknown tricks", [](RecordedPlay& record) { record.cards.resize(6); },
       "Card 6 of 6: the record ends here", ""},
      {"no cards",
       [](RecordedPlay& record) {
         record.cards.clear();
         record.tricks = 7;
       },
       "The play was not recorded", "2H-1 by West : NS +100"},
      {"passed out",
       [](RecordedPlay& record) {
         test::SetAuction(record.board, "P P P P");
         record.cards.clear();
       },
       "Passed out", "All Pass : 0"},
      {"no contract", [](RecordedPlay& record) { test::SetAuction(record.board, ""); },
       "The record cannot be played: it lacks the deal or the contract", ""},
      {"no deal", [](RecordedPlay& record) { record.board.hands = HandTable(); },
       "The record cannot be played: it lacks the deal or the contract", ""},
  };
  for (const Case& example : kCases) {
    SCOPED_TRACE(example.what);
    test::ScriptedHost host;
    RecordedPlay record = PlayAtRandom(5).record;
    example.change(record);
    Replay replay(record, host);
    while (replay.ForwardEnabled()) replay.Forward();
    replay.NextTrick();
    EXPECT_EQ(replay.PlaceText(), example.place);
    EXPECT_EQ(replay.ScoreText(), example.score);
  }
}

}  // namespace
}  // namespace tricklet
