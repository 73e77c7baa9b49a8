#include "play/auction_entry.h"

#include <vector>

#include <gtest/gtest.h>

#include "core/random_source.h"
#include "tests/support/calls.h"
#include "tests/support/scripted_host.h"
#include "tests/support/thorough.h"

namespace tricklet {
namespace {

/// The laws of the auction (17 to 22), stated over the plain list of calls.
struct Laws {
  int lastBid = -1;
  std::size_t lastBidAt = 0;
  int doubling = 0;
  bool over = false;
  const std::vector<Call>& calls;

  explicit Laws(const std::vector<Call>& made) : calls(made) {
    for (std::size_t i = 0; i < calls.size(); ++i) {
      if (calls[i].IsBid()) {
        lastBid = calls[i].BidIndex();
        lastBidAt = i;
        doubling = 0;
      }
      if (calls[i].IsDouble()) doubling = 1;
      if (calls[i].IsRedouble()) doubling = 2;
    }
    std::size_t passes = 0;
    while (passes < calls.size() && calls[calls.size() - 1 - passes].IsPass()) ++passes;
    over = passes >= (lastBid < 0 ? 4U : 3U);
  }
  bool MayBid(int index) const { return !over && index > lastBid; }
  bool ByOpponents() const { return (calls.size() - lastBidAt) % 2 == 1; }  // of the last bidder
  bool MayDouble() const { return !over && lastBid >= 0 && doubling == 0 && ByOpponents(); }
  bool MayRedouble() const { return !over && lastBid >= 0 && doubling == 1 && !ByOpponents(); }
};

/// What is legal is enabled, and what is not changes nothing.
void ExpectLawful(AuctionEntry& entry, const std::vector<Call>& calls) {
  const Laws laws(calls);
  const AuctionEntry::State before = entry.Now();
  for (int index = 0; index < Call::kBids; ++index) {
    const Call bid = Call::Bid(index / 5 + 1, static_cast<BidStrain>(index % 5));
    ASSERT_EQ(entry.BidEnabled(index), laws.MayBid(index)) << index << " after " << calls.size();
    ASSERT_TRUE(laws.MayBid(index) || !entry.Make(bid)) << index << " after " << calls.size();
  }
  ASSERT_EQ(entry.DblEnabled(), laws.MayDouble()) << calls.size();
  ASSERT_EQ(entry.RdbEnabled(), laws.MayRedouble()) << calls.size();
  ASSERT_TRUE(laws.MayDouble() || !entry.Make(Call::Double())) << calls.size();
  ASSERT_TRUE(laws.MayRedouble() || !entry.Make(Call::Redouble())) << calls.size();
  ASSERT_EQ(entry.PassEnabled(), !laws.over) << calls.size();
  ASSERT_TRUE(!laws.over || !entry.Make(Call::Pass())) << calls.size();
  ASSERT_EQ(entry.OKEnabled(), laws.over) << calls.size();
  ASSERT_EQ(entry.Now(), before) << calls.size();
  ASSERT_EQ(entry.UndoEnabled(), !calls.empty());
}

Call RandomCall(const AuctionEntry& entry, RandomSource& random) {
  const auto dice = random.Below(10);
  const int lastBid = entry.Now().lastBid;
  if (dice < 3 && lastBid < 34) {  // small steps up make long auctions with every kind of call
    const int index = RandomBetween(lastBid + 1, std::min(lastBid + 6, 34), random);
    return Call::Bid(index / 5 + 1, static_cast<BidStrain>(index % 5));
  }
  if (dice < 5 && entry.DblEnabled()) return Call::Double();
  return dice < 7 && entry.RdbEnabled() ? Call::Redouble() : Call::Pass();
}

TEST(AuctionEntry, RandomAuctionsKeepTheLaws) {
  RandomSource random(11);
  for (int auction = 0; auction < test::Repetitions(100000); ++auction) {
    Board board;
    board.boardNumber = 1 + auction % 16;
    test::ScriptedHost host;
    AuctionEntry entry(board, host);
    std::vector<Call> calls;
    std::vector<AuctionEntry::State> states{entry.Now()};
    while (!entry.Over() && calls.size() < 90) {
      if (!calls.empty() && random.Below(4) == 0) {
        entry.UnCall();
        calls.pop_back();
        states.pop_back();
        ASSERT_EQ(entry.Now(), states.back());
      }
      calls.push_back(RandomCall(entry, random));
      ASSERT_TRUE(entry.Make(calls.back()));
      states.push_back(entry.Now());
      ASSERT_NO_FATAL_FAILURE(ExpectLawful(entry, calls));
      ASSERT_EQ(entry.ToCall(), SeatAfter(board.Dealer(), static_cast<int>(calls.size())));
      if (calls.size() == 1) {  // from the dealer's column on: West, North, East, South
        ASSERT_EQ(entry.Now().callIndex, (IndexOf(board.Dealer()) + 1) % 4);
      }
    }
    if (!entry.Over()) continue;
    ASSERT_TRUE(entry.OK());
    ASSERT_TRUE(std::equal(calls.begin(), calls.end(), board.calls.begin(), board.calls.end()));
  }
}

TEST(AuctionEntry, TheLimitIsToldAndKept) {
  constexpr std::array kMost{100, 99, 98, 100};  // the fourth, dealt by West, could show 101
  for (std::size_t dealer = 0; dealer < kMost.size(); ++dealer) {
    const int most = kMost.at(dealer);
    Board board;
    board.boardNumber = static_cast<int>(dealer) + 1;
    test::ScriptedHost host;
    AuctionEntry entry(board, host);
    // every bid doubled and redoubled with passes between: longer than any limit
    for (int made = 0; made < most; ++made) {
      const std::array step{Call::Bid(made / 45 + 1, static_cast<BidStrain>(made / 9 % 5)),
                            Call::Double(), Call::Redouble()};
      ASSERT_TRUE(entry.Make(made % 3 == 0 ? step.at(static_cast<std::size_t>(made % 9 / 3))
                                           : Call::Pass()));
    }
    ASSERT_FALSE(entry.Over());
    host.ExpectTell("Bid limit has been reached");
    entry.AllPass();
    EXPECT_EQ(entry.Calls().Count(), most);
    if (most < CallList::kCapacity) {
      Board longer = board;
      longer.calls = entry.Calls();
      longer.calls.Add(Call::Pass());
      host.ExpectTell("Bid limit has been reached");  // and nothing of rules
      EXPECT_EQ(AuctionEntry(longer, host).Calls().Count(), most);
    }
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
  EXPECT_TRUE(entry.Calls().Empty() && entry.BidEnabled(0) && !entry.UndoEnabled());
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
