#include "core/statistics.h"

#include <gtest/gtest.h>

#include "tests/support/hands.h"

namespace tricklet {
namespace {

TEST(Statistics, LosersOfASuit) {
  const struct {
    const char* holding;
    int losers;
  } kCases[] = {{"", 0},         {"A", 0},        {"Q", 1},      {"2", 1},        {"A K", 0},
                {"A Q", 1},      {"Q J", 2},      {"K 2", 1},    {"A J 10 5", 1}, {"A J 9", 2},
                {"A Q J 10", 1}, {"K Q J 10", 1}, {"J 10 9", 3}, {"A K Q 5", 0}};
  for (const auto& c : kCases) EXPECT_EQ(SuitLosers(AddSpace(c.holding)), c.losers) << c.holding;
}

TEST(Statistics, CountsPointsLengthsAndMissingCards) {
  HandTable hands =
      test::HandsOf("N:AKQ2.AJT5..K43 J3.K2.A98765.QT8 T98.Q87.KQJ.AJ75 7654.9643.T432.9");
  const Statistics statistics = GetStats(hands);
  EXPECT_EQ(statistics.seatHcp[Seat::North], 17);
  EXPECT_EQ(statistics.seatLtc[Seat::North], 3);  // 0 spades, 1 hearts (A J 10), 2 clubs
  EXPECT_EQ(statistics.suitHcp[Seat::South][Suit::Diamonds], 6);
  EXPECT_EQ(statistics.seatCardCount[Seat::North], 11);
  EXPECT_EQ(statistics.incompleteSeat, Seat::North);
  EXPECT_FALSE(statistics.allHandsComplete);
  EXPECT_EQ(HoldingText(statistics.missingCards[Suit::Clubs]), " 6 2");
  EXPECT_TRUE(statistics.missingCards[Suit::Spades].Empty());
  EXPECT_FALSE(statistics.CardDealt({Suit::Clubs, Rank::Six}));

  AddCard(hands, {Suit::Clubs, Rank::Six}, Seat::North);
  AddCard(hands, {Suit::Clubs, Rank::Two}, Seat::North);
  const Statistics whole = GetStats(hands);
  EXPECT_TRUE(whole.allHandsComplete);
  int points = 0;
  for (const int seatPoints : whole.seatHcp) points += seatPoints;
  EXPECT_EQ(points, 40);
  EXPECT_EQ(whole.pairLtc[Side::NorthSouth],
            whole.seatLtc[Seat::North] + whole.seatLtc[Seat::South]);
}

TEST(Captions, FollowTheFourSwitches) {
  Statistics statistics;
  statistics.seatCardCount[Seat::South] = 13;
  statistics.seatHcp[Seat::South] = 12;
  statistics.seatLtc[Seat::South] = 6;
  const struct {
    bool player, cards, points, losers;
    const char* caption;
  } kCases[] = {
      {true, true, true, true, "South: 13 cards : HCP=12 LTC=6"},
      {false, true, false, true, "13 cards : LTC=6"},
      {false, true, false, false, "13 cards "},
      {true, false, true, false, "South: HCP=12 "},
      {false, false, false, false, ""},
  };
  for (const auto& c : kCases) {
    Settings settings;
    settings.captionPlayer = c.player;
    settings.captionnCards = c.cards;
    settings.captionHcp = c.points;
    settings.captionLtc = c.losers;
    EXPECT_EQ(GetCaptionsEdit(statistics, settings)[Seat::South], c.caption);
  }
}

}  // namespace
}  // namespace tricklet
