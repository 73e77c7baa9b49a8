#include "core/statistics.h"

#include <tuple>

#include <gtest/gtest.h>

#include "tests/support/hands.h"

namespace tricklet::test {
namespace {

TEST(Statistics, LosersOfASuit) {
  constexpr std::pair<const char*, int> kCases[] = {
      {"", 0},         {"A", 0},        {"Q", 1},     {"2", 1},        {"A K", 0},
      {"A Q", 1},      {"Q J", 2},      {"K 2", 1},   {"A J 10 5", 1}, {"A J 9", 2},
      {"A Q J 10", 1}, {"K Q J 10", 1}, {"J 10 9", 3}};
  for (const auto& [held, losers] : kCases) EXPECT_EQ(SuitLosers(AddSpace(held)), losers) << held;
}

TEST(Statistics, CountsPointsLengthsAndMissingCards) {
  HandTable hands = HandsOf("N:AKQ2.AJT5..K43 J3.K2.A98765.QT8 T98.Q87.KQJ.AJ75 7654.9643.T432.9");
  const Statistics statistics = GetStats(hands);
  EXPECT_EQ(statistics.seatHcp.values, (std::array{17, 10, 13, 0}));
  EXPECT_EQ(statistics.seatLtc[Seat::North], 3);  // 0 spades, 1 hearts (A J 10), 2 clubs
  EXPECT_EQ(statistics.suitHcp[Seat::South][Suit::Diamonds], 6);
  EXPECT_EQ(statistics.seatCardCount.values, (std::array{11, 13, 13, 13}));
  EXPECT_EQ(statistics.incompleteSeat, Seat::North);
  EXPECT_EQ(HoldingText(statistics.missingCards[Suit::Clubs]), " 6 2");
  EXPECT_FALSE(statistics.CardDealt({Suit::Clubs, Rank::Six}));

  hands[Seat::North][Suit::Clubs] = AddSpace("K 6 4 3 2");
  const Statistics whole = GetStats(hands);
  EXPECT_TRUE(whole.allHandsComplete && !statistics.allHandsComplete);
  EXPECT_EQ(whole.pairLtc[Side::NorthSouth],
            whole.seatLtc[Seat::North] + whole.seatLtc[Seat::South]);
}

TEST(Captions, FollowTheFourSwitches) {
  Statistics statistics;
  statistics.seatCardCount[Seat::South] = 13;
  statistics.seatHcp[Seat::South] = 12;
  statistics.seatLtc[Seat::South] = 6;
  Settings settings;
  const std::tuple<bool, bool, bool, bool, const char*> kCases[] = {
      {true, true, true, true, "South: 13 cards : HCP=12 LTC=6"},
      {false, true, false, true, "13 cards : LTC=6"},
      {false, true, false, false, "13 cards "},
      {true, false, true, false, "South: HCP=12 "},
      {false, false, false, false, ""}};
  for (const auto& [player, cards, points, losers, caption] : kCases) {
    std::tie(settings.captionPlayer, settings.captionnCards) = std::pair(player, cards);
    std::tie(settings.captionHcp, settings.captionLtc) = std::pair(points, losers);
    EXPECT_EQ(GetCaptionsEdit(statistics, settings)[Seat::South], caption);
  }
}

}  // namespace
}  // namespace tricklet::test
