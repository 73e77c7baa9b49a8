// A result against par and against what the deal makes.
#include "review/table_verdict.h"

#include <optional>
#include <string>

#include <gtest/gtest.h>

namespace tricklet::test {
namespace {

/// Tricks of North-South and of East-West, whichever of them declares, in spades, hearts, diamonds,
/// clubs and no-trump. Nobody is vulnerable.
Board BoardOf(std::array<int, kStrains> northSouth, std::array<int, kStrains> eastWest) {
  Board board;
  board.boardNumber = 1;
  for (const Seat seat : kAllSeats) {
    const auto& tricks = SideOf(seat) == Side::NorthSouth ? northSouth : eastWest;
    for (int strain = 0; strain < kStrains; ++strain) {
      board.makeable[ToTableSeat(seat)][ToTableStrain(static_cast<Strain>(strain))] =
          static_cast<std::int16_t>(tricks.at(static_cast<std::size_t>(strain)));
    }
  }
  board.makeableValid = true;
  return board;
}

/// "NS game, missed; EW overbid": what is said of each side.
std::string VerdictText(const ReportTable& table) {
  std::string text;
  for (const Side side : {Side::NorthSouth, Side::EastWest}) {
    const BiddingVerdict& verdict = table.bidding[side];
    std::string words;
    if (verdict.missedGame) words += " missed game";
    if (verdict.missedSlam) words += " missed slam";
    if (verdict.overbid) words += " overbid";
    if (words.empty()) continue;
    text +=
        (text.empty() ? "" : "; ") + std::string(side == Side::NorthSouth ? "NS" : "EW") + words;
  }
  return text;
}

struct Case {
  const char* contract;
  Seat declarer;
  std::optional<int> tricks;
  int score;  ///< as any table of duplicate scores has it
  int bidding;
  int play;
  const char* verdict;
  const char* why;
};

void Check(const Board& board, int par, const Case& one) {
  SCOPED_TRACE(std::string(one.contract) + " " + std::to_string(one.score));
  const Par computed = ComputePar(board.makeable, board.Dealer(), board.Vulnerability());
  ASSERT_EQ(computed.score, par);
  TravellerRow row;
  row.contract = one.contract;
  row.tricks = one.tricks;
  if (one.tricks) row.declarer = one.declarer;
  row.score = one.score;
  const ReportTable table = JudgeTable(row, 0, 1, &board, computed);
  ASSERT_TRUE(table.par);
  EXPECT_EQ(table.par->total, one.score - par);
  EXPECT_EQ(table.par->bidding, one.bidding);
  EXPECT_EQ(table.par->play, one.play);
  EXPECT_EQ(table.ParOf(Side::EastWest)->total, par - one.score);
  EXPECT_EQ(VerdictText(table), one.verdict);
  EXPECT_EQ(table.WhyBeaten(), one.why);
}

constexpr Seat kNorth = Seat::North;
constexpr Seat kSouth = Seat::South;
constexpr Seat kEast = Seat::East;

TEST(TableVerdict, ResultsOnABoardWithAGame) {
  const Board board = BoardOf({10, 6, 7, 7, 9}, {3, 7, 6, 6, 4});
  const std::vector<Case> cases{
      {"4S", kSouth, 10, 420, 0, 0, "", ""},
      {"4S", kSouth, 9, -50, 0, -470, "", "play"},
      {"4S", kSouth, 11, 450, 0, 30, "", "play"},
      {"2S", kNorth, 10, 170, -250, 0, "NS missed game", "bidding"},
      {"2S", kNorth, 11, 200, -250, 30, "NS missed game", "bidding"},
      {"2S", kNorth, 9, 140, -250, -30, "NS missed game", "bidding and play"},
      {"3NT", kNorth, 9, 400, -20, 0, "", "bidding"},
      {"5S", kNorth, 10, -50, -470, 0, "NS overbid", "bidding"},
      {"5S", kNorth, 11, 450, -470, 500, "NS overbid", "play"},
      {"2Sx", kNorth, 10, 670, 250, 0, "", "bidding"},
      {"5Hx", kEast, 7, 800, 380, 0, "EW overbid", "bidding"},
      {"3H", kEast, 7, 100, -320, 0, "NS missed game", "bidding"},
      {"5H", kEast, 7, 200, -220, 0, "", "bidding"},
      {"All Pass", kNorth, std::nullopt, 0, -420, 0, "NS missed game", "bidding"},
  };
  for (const Case& one : cases) Check(board, 420, one);
}

TEST(TableVerdict, ResultsOnABoardWithASlam) {
  const Board board = BoardOf({9, 8, 8, 9, 12}, {4, 5, 5, 4, 1});
  const std::vector<Case> cases{
      {"6NT", kSouth, 12, 990, 0, 0, "", ""},
      {"3NT", kSouth, 12, 490, -500, 0, "NS missed slam", "bidding"},
      {"2C", kSouth, 9, 110, -880, 0, "NS missed slam", "bidding"},
      {"6C", kSouth, 9, -150, -1140, 0, "NS overbid", "bidding"},
      {"7NT", kSouth, 12, -50, -1040, 0, "NS overbid", "bidding"},
  };
  for (const Case& one : cases) Check(board, 990, one);
}

TEST(TableVerdict, ASacrificeThatPaysIsNotOverbid) {
  const Board board = BoardOf({10, 3, 4, 4, 5}, {3, 9, 6, 6, 4});
  Check(board, 300, {"5Hx", kEast, 9, 300, 0, 0, "", ""});
  Check(board, 300, {"5H", kEast, 8, 150, -200, 50, "", "bidding"});
}

TEST(TableVerdict, WhatCannotBeCompared) {
  const Board board = BoardOf({10, 6, 7, 7, 9}, {3, 7, 6, 6, 4});
  const Par par = ComputePar(board.makeable, board.Dealer(), board.Vulnerability());
  TravellerRow row;
  row.adjusted = "A6040";
  EXPECT_FALSE(JudgeTable(row, 0, 1, &board, par).par) << "a ruling";
  row.score = 420;
  const ReportTable unknown = JudgeTable(row, 0, 1, &board, par);
  EXPECT_EQ(unknown.par, (AgainstPar{0, std::nullopt, std::nullopt})) << "no contract";
  EXPECT_EQ(unknown.WhyBeaten(), "");
  EXPECT_FALSE(JudgeTable(row, 0, 1, &board, std::nullopt).par);
  row.record.board.hands[Seat::North][Suit::Spades].Add(Rank::Ace);
  EXPECT_FALSE(JudgeTable(row, 0, 1, &board, par).par) << "another deal";
}

}  // namespace
}  // namespace tricklet::test
