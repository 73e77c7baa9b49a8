#include <string>
#include <tuple>

#include <gtest/gtest.h>

#include "core/board.h"
#include "tests/support/calls.h"
#include "tests/support/hands.h"

namespace tricklet::test {
namespace {

TEST(GetContract, DerivesContractDeclarerAndTrumps) {
  // The board's number, its calls, its contract with declarer, and level and trumps beside it.
  const std::tuple<int, const char*, const char*, int, Strain> kCases[] = {
      {1, "1H P 4H P P P", "4H by North", 4, Strain::Hearts},
      {2, "P P 1H 2H 3D 4H", "4H by North", 4, Strain::Hearts},
      // Both sides name the strain: the first of the last bidder's own side declares.
      {1, "1S 2S 4S", "4S by North", 4, Strain::Spades},
      {1, "1NT X XX P P P", "1NTxx by North", 1, Strain::NoTrump},
      {1, "1NT X XX X", "1NTx by North", 1, Strain::NoTrump},
      {4, "1C X XX 1D", "1D by South", 1, Strain::Diamonds},
      {1, "P P P", "", 0, Strain::NoTrump},
      {1, "P P P P", "All Pass", 0, Strain::NoTrump},
      {1, "P 1C P 1H", "1H by West", 1, Strain::Hearts},  // four calls, but not four passes
      {1, "X XX", "", 0, Strain::NoTrump},                // no auction, but nothing to break on
  };
  for (const auto& [number, auction, label, level, trumps] : kCases) {
    Board board;
    board.boardNumber = number;
    SetAuction(board, auction);
    EXPECT_EQ(ContractLabel(board), label) << auction;
    EXPECT_EQ(board.contractLevel, level) << auction;
    EXPECT_EQ(board.trumps, trumps) << auction;
  }
}

TEST(SetContract, TakesATextThatIsOneAndNoOther) {
  for (const auto& [text, contract] : {std::pair{"4S", "4S"}, {"3NTx", "3NTx"}, {"1C**", "1Cxx"}}) {
    Board board;
    EXPECT_TRUE(SetContract(board, text));
    EXPECT_EQ(board.contract, contract);
    for (const char* none : {"4SXXX", "8C", "4Sy", "S", ""}) {
      EXPECT_FALSE(SetContract(board, none)) << none;
      EXPECT_EQ(board.contract, contract) << none;
    }
  }
}

TEST(Call, TextRoundTripsAndShortFormsAreTaken) {
  for (int bid = 0; bid < 35; ++bid) {
    const Call call = Call::Bid(bid / 5 + 1, static_cast<BidStrain>(bid % 5));
    EXPECT_EQ(Call::FromText(call.Text()), call) << call.Text();
    EXPECT_EQ(call.BidIndex(), bid);
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

TEST(GetHand, EmptiesAHandThatIsUnknown) {
  HandTable hands = HandsOf("N:2... - - -");
  std::string_view text = "- 3...";
  GetHand(text, hands, Seat::North);
  EXPECT_FALSE(HasCards(hands));
}

}  // namespace
}  // namespace tricklet::test
