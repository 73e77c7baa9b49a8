#include "play/auction_entry.h"

#include <vector>

#include <gtest/gtest.h>

#include "core/random_source.h"
#include "tests/support/calls.h"
#include "tests/support/scripted_host.h"
#include "tests/support/thorough.h"

namespace tricklet {
namespace {

/// Bid `index`, 0..34, in bidding order.
Call BidOf(int index) {
  return Call::Bid(index / 5 + 1, static_cast<BidStrain>(index % 5));
}

/// The laws of the auction (17 to 22), stated over the list of calls.
struct Laws {
  int lastBid = -1;
  int callsSinceBid = 0;
  int doubling = 0;
  int passes = 0;

  explicit Laws(const CallList& calls) {
    for (const Call call : calls) {
      passes = call.IsPass() ? passes + 1 : 0;
      ++callsSinceBid;
      if (call.IsDouble()) doubling = 1;
      if (call.IsRedouble()) doubling = 2;
      if (!call.IsBid()) continue;
      lastBid = call.BidIndex();
      callsSinceBid = doubling = 0;
    }
  }
  bool Over() const { return passes == (lastBid < 0 ? 4 : 3); }
  bool Allow(Call call) const {
    const bool opponentsOfBidder = callsSinceBid % 2 == 0;
    if (Over()) return false;
    if (call.IsBid()) return call.BidIndex() > lastBid;
    if (call.IsDouble()) return lastBid >= 0 && doubling == 0 && opponentsOfBidder;
    return call.IsPass() || (doubling == 1 && !opponentsOfBidder);
  }
};

bool IsEnabled(const AuctionEntry& entry, Call call) {
  if (call.IsBid()) return entry.BidEnabled(call.BidIndex());
  if (call.IsPass()) return entry.PassEnabled();
  return call.IsDouble() ? entry.DblEnabled() : entry.RdbEnabled();
}

/// What is legal is enabled, and what is not changes nothing.
void ExpectLawful(AuctionEntry& entry) {
  const Laws laws(entry.Calls());
  const AuctionEntry::State before = entry.Now();
  std::vector<Call> every{Call::Pass(), Call::Double(), Call::Redouble()};
  for (int index = 0; index < Call::kBids; ++index) every.push_back(BidOf(index));
  for (const Call call : every) {
    ASSERT_EQ(IsEnabled(entry, call), laws.Allow(call)) << call.Text();
    ASSERT_TRUE(laws.Allow(call) || !entry.Make(call)) << call.Text();
  }
  ASSERT_EQ(entry.Now(), before);
  ASSERT_EQ(entry.OKEnabled(), laws.Over());
  ASSERT_TRUE(entry.UndoEnabled());
}

/// Small steps up make long auctions with every kind of call.
Call RandomCall(const Laws& laws, RandomSource& random) {
  const Call bid = BidOf(std::min(laws.lastBid + RandomBetween(1, 6, random), 34));
  const std::array choices{Call::Pass(), Call::Double(), Call::Redouble(), bid};
  Call call;
  do call = choices.at(random.Below(4));
  while (!laws.Allow(call));
  return call;
}

TEST(AuctionEntry, RandomAuctionsKeepTheLaws) {
  RandomSource random(11);
  for (int auction = 0; auction < test::Repetitions(100000); ++auction) {
    Board board;
    board.boardNumber = 1 + auction % 16;
    test::ScriptedHost host;
    AuctionEntry entry(board, host);
    const int firstColumn = (IndexOf(board.Dealer()) + 1) % 4;  // West, North, East, South
    std::vector<AuctionEntry::State> states{entry.Now()};
    while (!entry.Over() && states.size() <= 90) {
      if (entry.UndoEnabled() && random.Below(4) == 0) {
        entry.UnCall();
        states.pop_back();
        ASSERT_EQ(entry.Now(), states.back());
      }
      const int made = entry.Calls().Count();
      const Call call = RandomCall(Laws(entry.Calls()), random);
      ASSERT_TRUE(entry.Make(call) && entry.Calls()[made] == call);
      states.push_back(entry.Now());
      ASSERT_NO_FATAL_FAILURE(ExpectLawful(entry));
      ASSERT_EQ(entry.Now().callIndex, firstColumn + made);
      ASSERT_EQ(entry.ToCall(), SeatAfter(board.Dealer(), made + 1));
    }
    if (!entry.Over()) continue;
    ASSERT_TRUE(entry.OK());
    ASSERT_EQ(board.calls, entry.Calls());
  }
}

TEST(AuctionEntry, TheLimitIsToldAndKept) {
  constexpr std::array kMost{100, 99, 98, 100};  // the fourth, dealt by West, could show 101
  for (std::size_t dealer = 0; dealer < kMost.size(); ++dealer) {
    Board board;
    board.boardNumber = static_cast<int>(dealer) + 1;
    // Every bid doubled and redoubled, with passes between: longer than any limit.
    while (!board.calls.Full()) {
      const int made = board.NumCalls();
      const std::array step{BidOf(made / 9), Call::Double(), Call::Redouble()};
      const auto index = static_cast<std::size_t>(made % 9 / 3);
      board.calls.Add(made % 3 == 0 ? step.at(index) : Call::Pass());
    }
    test::ScriptedHost host;
    const std::string told = "Bid limit has been reached";  // and nothing of rules
    if (kMost.at(dealer) < CallList::kCapacity) host.ExpectTell(told);
    AuctionEntry entry(board, host);
    EXPECT_EQ(entry.Calls().Count(), kMost.at(dealer));
    host.ExpectTell(told);
    entry.AllPass();
    EXPECT_EQ(entry.Calls().Count(), kMost.at(dealer));
    entry.UnCall();
    EXPECT_TRUE(entry.PassEnabled());
  }
}

TEST(AuctionEntry, ConfirmingTellsChangedFromUnchanged) {
  Board board;
  test::SetAuction(board, "1NT Pass Pass Pass");
  test::ScriptedHost host;
  for (const bool changed : {false, true}) {
    board.playMode = true;
    board.handChanged = changed;
    EXPECT_TRUE(AuctionEntry(board, host).OK());
    EXPECT_EQ(board.handChanged, changed) << "other changes are still not saved";
    EXPECT_FALSE(board.playMode);
  }
  board.handChanged = false;
  AuctionEntry entry(board, host);
  host.ExpectAsk("Any bidding changes will be lost", "Tricklet", Answer::Cancel);
  EXPECT_FALSE(entry.Cancel());
  host.ExpectAsk("Any bidding changes will be lost", "Tricklet", Answer::OK);
  EXPECT_TRUE(entry.Cancel());
  entry.UnCall();
  EXPECT_FALSE(entry.OKEnabled() || entry.OK()) << "not complete";
  entry.Clear();
  EXPECT_TRUE(entry.OKEnabled()) << "an auction can be taken away";
  EXPECT_EQ(board.NumCalls(), 4);
  entry.AllPass();
  EXPECT_TRUE(entry.OK());
  EXPECT_EQ(board.contract, "All Pass");
  EXPECT_TRUE(board.handChanged);
}

TEST(AuctionEntry, AStoredAuctionThatBreaksTheRulesOpensAsFarAsItIsLegal) {
  Board board;
  board.boardNumber = 2;
  test::ScriptedHost host;
  for (const bool read : {true, false}) {
    test::SetAuction(board, "1S Pass");
    board.calls.Add(read ? test::CallOf("1H") : Call::Unread(), "1!");
    board.calls.Add(Call::Pass());
    const CallList stored = board.calls;
    host.ExpectTell("The auction of this board breaks the rules at call 3 (" +
                    std::string(read ? "1H" : "1!") +
                    " by West).\nOnly the calls before it are shown.");
    EXPECT_EQ(AuctionEntry(board, host).Calls().Count(), 2);
    EXPECT_EQ(board.calls, stored) << "the board keeps its calls until they are confirmed";
  }
}

}  // namespace
}  // namespace tricklet
