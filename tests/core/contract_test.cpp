#include <string>

#include <gtest/gtest.h>

#include "core/board.h"
#include "core/fault.h"
#include "tests/support/calls.h"

namespace tricklet {
namespace {

/// Board `number` with the calls of `auction`, separated by blanks.
Board BoardWith(int number, const std::string& auction) {
  Board board;
  board.boardNumber = number;
  test::SetAuction(board, auction);
  return board;
}

TEST(GetContract, DerivesContractDeclarerAndTrumps) {
  constexpr auto kNone = Strain::NoTrump;
  const struct {
    int board;
    const char* auction;
    const char* label;
    Strain trumps;
    int level;
  } kCases[] = {
      {1, "1H Pass 4H Pass Pass Pass", "4H by North", Strain::Hearts, 4},
      {2, "Pass Pass 1H 2H 3D 4H", "4H by North", Strain::Hearts, 4},
      // both sides name the strain: the first of the last bidder's own side declares
      {1, "1S 2S 4S", "4S by North", Strain::Spades, 4},
      {1, "1S Dbl 2S", "2S by North", Strain::Spades, 2},
      {1, "1NT Dbl Rdbl Pass Pass Pass", "1NTxx by North", Strain::NoTrump, 1},
      {1, "1NT Dbl Rdbl Dbl", "1NTx by North", Strain::NoTrump, 1},
      {3, "1C Dbl", "1Cx by South", Strain::Clubs, 1},
      {4, "7NT", "7NT by West", Strain::NoTrump, 7},
      {1, "", "", kNone, 0},
      {1, "Pass Pass Pass", "", kNone, 0},
      {1, "Pass Pass Pass Pass", "All Pass", kNone, 0},
      {1, "Dbl Rdbl", "", kNone, 0},  // no auction, but nothing to break on
      {1, "Pass 1C Pass 1H", "1H by West", Strain::Hearts, 1},
  };
  for (const auto& c : kCases) {
    const Board board = BoardWith(c.board, c.auction);
    EXPECT_EQ(ContractLabel(board), c.label) << c.auction;
    EXPECT_EQ(board.trumps, c.trumps) << c.auction;
    EXPECT_EQ(board.contractLevel, c.level) << c.auction;
  }
}

TEST(Call, TextRoundTripsAndShortFormsAreTaken) {
  for (int level = 1; level <= 7; ++level) {
    for (int strain = 0; strain < kStrains; ++strain) {
      const Call call = Call::Bid(level, static_cast<BidStrain>(strain));
      EXPECT_EQ(Call::FromText(call.Text()), call) << call.Text();
      EXPECT_EQ(call.BidIndex(), (level - 1) * 5 + strain);
    }
  }
  EXPECT_EQ(Call::FromText(" 1n "), Call::Bid(1, BidStrain::NoTrump));
  EXPECT_EQ(Call::FromText("p"), Call::Pass());
  EXPECT_EQ(Call::FromText("xx"), Call::Redouble());
  EXPECT_EQ(Call::FromText("D"), Call::Double());
  for (const char* none : {"", "8C", "0C", "1", "1X", "1NX", "1CT", "Passs", "XxX", "1NTT"}) {
    EXPECT_FALSE(Call::FromText(none)) << none;
  }
}

TEST(CallList, KeepsWhatIsNoCallInItsPlace) {
  Board board;
  CallList& calls = board.calls;
  calls.Add(Call::Bid(1, BidStrain::Hearts));
  calls.Add(Call::Unread(), "1!");
  calls.Add(Call::Bid(4, BidStrain::Hearts));
  calls.Add(Call::Unread(), "\x01 no longer than this");
  GetContract(board);
  EXPECT_EQ(ContractLabel(board), "4H by North");
  EXPECT_EQ(calls.TextAt(1) + calls.TextAt(2), "1!4H");
  EXPECT_EQ(calls.ShownAt(3), "  no longer than...");

  CallList others = calls;
  others.RemoveLast();
  others.Add(Call::Unread(), "?");
  EXPECT_EQ(others.TextAt(3), "?");
  EXPECT_FALSE(others == calls);
  others.Clear();
  others.AddFrom(calls, 1);
  EXPECT_EQ(others.TextAt(0), "1!");
}

TEST(CallList, HoldsAHundred) {
  CallList calls;
  for (int i = 0; i < CallList::kCapacity; ++i) calls.Add(Call::Pass());
  EXPECT_THROW(calls.Add(Call::Pass()), Fault);
  EXPECT_EQ(calls.Count(), 100);
}

TEST(GetHand, TakesOneHandFromTheFront) {
  HandTable hands;
  hands[Seat::East][Suit::Clubs].Add(Rank::Two);
  std::string_view text = "AK10..J5.9 - 2.3";
  GetHand(text, hands, Seat::North);
  EXPECT_EQ(HoldingText(hands[Seat::North][Suit::Spades]), " A K 10");
  EXPECT_TRUE(hands[Seat::North][Suit::Hearts].Empty());
  EXPECT_EQ(HoldingText(hands[Seat::North][Suit::Clubs]), " 9");
  GetHand(text, hands, Seat::East);
  EXPECT_TRUE(hands[Seat::East][Suit::Clubs].Empty()) << "an unknown hand is an empty one";
  GetHand(text, hands, Seat::South);
  EXPECT_EQ(HoldingText(hands[Seat::South][Suit::Hearts]), " 3");
  EXPECT_TRUE(text.empty());
  GetHand(text, hands, Seat::South);
  EXPECT_FALSE(hands[Seat::South][Suit::Spades].Has(Rank::Two));
}

}  // namespace
}  // namespace tricklet
