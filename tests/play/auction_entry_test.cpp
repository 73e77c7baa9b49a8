#include "play/auction_entry.h"

#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/calls.h"
#include "tests/support/scripted_host.h"

namespace tricklet {
namespace {

using test::ScriptedHost;

Board BoardOf(int number, const std::string& auction = "") {
  Board board;
  board.boardNumber = number;
  test::SetAuction(board, auction);
  return board;
}

/// The laws of the auction (17 to 22), stated over the plain list of calls.
struct Laws {
  int lastBid = -1;
  std::size_t lastBidAt = 0;
  int doubling = 0;
  bool over = false;

  explicit Laws(const std::vector<Call>& calls) : count(calls.size()) {
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
    while (passes < count && calls[count - 1 - passes].IsPass()) ++passes;
    over = passes >= (lastBid < 0 ? 4U : 3U);
  }
  bool MayBid(int index) const { return !over && index > lastBid; }
  bool ByOpponents() const { return (count - lastBidAt) % 2 == 1; }  // of the last bidder
  bool MayDouble() const { return !over && lastBid >= 0 && doubling == 0 && ByOpponents(); }
  bool MayRedouble() const { return !over && lastBid >= 0 && doubling == 1 && !ByOpponents(); }

  std::size_t count;
};

void ExpectLawful(const AuctionEntry& entry, const std::vector<Call>& calls) {
  const Laws laws(calls);
  for (int index = 0; index < Call::kBids; ++index) {
    ASSERT_EQ(entry.BidEnabled(index), laws.MayBid(index)) << index << " after " << calls.size();
  }
  ASSERT_EQ(entry.DblEnabled(), laws.MayDouble()) << calls.size();
  ASSERT_EQ(entry.RdbEnabled(), laws.MayRedouble()) << calls.size();
  ASSERT_EQ(entry.PassEnabled(), !laws.over) << calls.size();
  ASSERT_EQ(entry.OKEnabled(), laws.over) << calls.size();
}

TEST(AuctionEntry, RandomAuctionsKeepTheLaws) {
  std::mt19937 random(11);
  for (int auction = 0; auction < 100000; ++auction) {
    Board board = BoardOf(1 + auction % 16);
    ScriptedHost host;
    AuctionEntry entry(board, host);
    std::vector<Call> calls;
    std::vector<AuctionEntry::State> states{entry.Now()};
    // Small steps up make long auctions with every kind of call.
    while (!entry.Over() && calls.size() < 90) {
      const auto dice = random() % 10;
      Call call = Call::Pass();
      if (dice < 3 && entry.Now().lastBid < 34) {
        const auto room = static_cast<unsigned>(34 - entry.Now().lastBid);
        const int index = entry.Now().lastBid + 1 + static_cast<int>(random() % std::min(room, 6U));
        call = Call::Bid(index / 5 + 1, static_cast<BidStrain>(index % 5));
      } else if (dice < 5 && entry.DblEnabled()) {
        call = Call::Double();
      } else if (dice < 7 && entry.RdbEnabled()) {
        call = Call::Redouble();
      } else if (dice == 9 && !calls.empty()) {
        for (auto back = random() % calls.size() + 1; back > 0; --back) {
          entry.UnCall();
          calls.pop_back();
          states.pop_back();
          ASSERT_EQ(entry.Now(), states.back());
        }
        continue;
      }
      ASSERT_TRUE(entry.Make(call));
      calls.push_back(call);
      states.push_back(entry.Now());
      ASSERT_NO_FATAL_FAILURE(ExpectLawful(entry, calls));
      ASSERT_EQ(entry.ToCall(), SeatAfter(board.Dealer(), static_cast<int>(calls.size())));
    }
    if (!entry.Over()) continue;
    ASSERT_TRUE(entry.OK());
    Board derived = board;
    GetContract(derived);  // the same rule over the finished list of calls
    ASSERT_EQ(ContractLabel(board), ContractLabel(derived));
    ASSERT_EQ(board.contractLevel, derived.contractLevel);
    if (board.contractLevel > 0) {
      ASSERT_EQ(board.trumps, derived.trumps);
    }
  }
}

TEST(AuctionEntry, IllegalCallsAreNotMade) {
  const struct {
    const char* auction;
    const char* call;
  } kCases[] = {{"", "X"},        {"", "XX"},        {"1S", "1H"},      {"1S", "1S"},
                {"1S P", "X"},    {"1S X", "X"},     {"1S X P", "X"},   {"1S X XX", "XX"},
                {"1S X", "XX P"}, {"1S P P P", "P"}, {"P P P P", "1C"}, {"1S P P P", "2S"}};
  for (const auto& c : kCases) {
    Board board = BoardOf(1, c.auction);
    ScriptedHost host;
    AuctionEntry entry(board, host);
    const AuctionEntry::State before = entry.Now();
    const auto call = Call::FromText(c.call);
    if (!call) continue;
    EXPECT_FALSE(entry.Make(*call)) << c.auction << " " << c.call;
    EXPECT_EQ(entry.Now(), before) << c.auction << " " << c.call;
  }
}

TEST(AuctionEntry, StartsInTheDealersColumn) {
  for (int number = 1; number <= 4; ++number) {
    Board board = BoardOf(number);
    ScriptedHost host;
    AuctionEntry entry(board, host);
    EXPECT_EQ(entry.ToCall(), board.Dealer());
    entry.pass();
    // columns West, North, East, South
    EXPECT_EQ(entry.Now().callIndex, (IndexOf(board.Dealer()) + 1) % 4);
  }
}

TEST(AuctionEntry, TheLimitIsToldAndKept) {
  const struct {
    int board;
    int calls;
  } kCases[] = {{1, 100}, {2, 99}, {3, 98}, {4, 100}};  // the 101st cannot be held for West
  for (const auto& c : kCases) {
    Board board = BoardOf(c.board);
    ScriptedHost host;
    AuctionEntry entry(board, host);
    int made = 0;
    // every bid doubled and redoubled with passes between: longer than any limit
    for (int bid = 0; bid < Call::kBids && made < c.calls; ++bid) {
      const Call step[] = {Call::Bid(bid / 5 + 1, static_cast<BidStrain>(bid % 5)),
                           Call::Pass(),
                           Call::Pass(),
                           Call::Double(),
                           Call::Pass(),
                           Call::Pass(),
                           Call::Redouble(),
                           Call::Pass(),
                           Call::Pass()};
      for (const Call call : step) {
        if (made == c.calls) break;
        ASSERT_TRUE(entry.Make(call)) << made;
        ++made;
      }
    }
    ASSERT_FALSE(entry.Over());
    host.ExpectTell("Bid limit has been reached");
    entry.AllPass();
    EXPECT_EQ(entry.Calls().Count(), c.calls);
    if (c.calls < CallList::kCapacity) {
      Board longer = board;
      longer.calls = entry.Calls();
      longer.calls.Add(Call::Pass());
      host.ExpectTell("Bid limit has been reached");  // and nothing of rules
      EXPECT_EQ(AuctionEntry(longer, host).Calls().Count(), c.calls);
    }
    entry.UnCall();
    EXPECT_TRUE(entry.PassEnabled());
  }
}

TEST(AuctionEntry, AllPassUndoAndClear) {
  Board board = BoardOf(1);
  ScriptedHost host;
  AuctionEntry entry(board, host);
  EXPECT_FALSE(entry.UndoEnabled());
  EXPECT_FALSE(entry.OKEnabled());
  entry.AllPass();
  EXPECT_EQ(entry.Calls().Count(), 4);
  EXPECT_TRUE(entry.OKEnabled());
  entry.UnCall();
  EXPECT_FALSE(entry.OKEnabled());
  entry.Bid(34);
  entry.AllPass();
  EXPECT_EQ(entry.Calls().Count(), 7);
  entry.Clear();
  EXPECT_TRUE(entry.Calls().Empty());
  EXPECT_TRUE(entry.BidEnabled(0));
}

TEST(AuctionEntry, ADeclarerIsForgottenWhenHisBidIsTakenBack) {
  Board board = BoardOf(1);
  ScriptedHost host;
  AuctionEntry entry(board, host);
  for (const char* call : {"1H", "Pass"}) entry.Make(test::CallOf(call));
  entry.Clear();
  for (const char* call : {"Pass", "Pass", "1H", "Pass", "2H"}) {
    entry.Make(test::CallOf(call));
  }
  entry.AllPass();
  ASSERT_TRUE(entry.OK());
  EXPECT_EQ(ContractLabel(board), "2H by South");
}

TEST(AuctionEntry, ConfirmingTellsChangedFromUnchanged) {
  Board board = BoardOf(1, "1NT Pass Pass Pass");
  ScriptedHost host;
  board.playMode = true;
  AuctionEntry same(board, host);
  EXPECT_TRUE(same.OK());
  EXPECT_FALSE(board.handChanged);
  EXPECT_FALSE(board.playMode);

  AuctionEntry other(board, host);
  other.Clear();
  EXPECT_TRUE(other.OKEnabled()) << "an auction can be taken away";
  other.AllPass();
  EXPECT_TRUE(other.OK());
  EXPECT_EQ(board.contract, "All Pass");
  EXPECT_TRUE(board.handChanged);
}

TEST(AuctionEntry, CancelAsks) {
  Board board = BoardOf(1, "1NT Pass Pass Pass");
  ScriptedHost host;
  AuctionEntry entry(board, host);
  entry.Clear();
  host.ExpectAsk("Any bidding changes will be lost", "Tricklet", Answer::Cancel);
  EXPECT_FALSE(entry.Cancel());
  host.ExpectAsk("Any bidding changes will be lost", "Tricklet", Answer::OK);
  EXPECT_TRUE(entry.Cancel());
  EXPECT_EQ(board.NumCalls(), 4);
}

TEST(AuctionEntry, AStoredAuctionThatBreaksTheRulesOpensAsFarAsItIsLegal) {
  Board board = BoardOf(2, "1S Pass 1H Pass Pass Pass");
  const CallList stored = board.calls;
  ScriptedHost host;
  host.ExpectTell(
      "The auction of this board breaks the rules at call 3 (1H by West).\n"
      "Only the calls before it are shown.");
  AuctionEntry entry(board, host);
  EXPECT_EQ(entry.Calls().Count(), 2);
  EXPECT_EQ(board.calls, stored) << "the board keeps its calls until they are confirmed";

  board.calls.Clear();
  board.calls.Add(Call::Pass());
  board.calls.Add(Call::Unread(), "1!");
  board.calls.Add(Call::Pass());
  host.ExpectTell(
      "The auction of this board breaks the rules at call 2 (1! by South).\n"
      "Only the calls before it are shown.");
  EXPECT_EQ(AuctionEntry(board, host).Calls().Count(), 1);
}

}  // namespace
}  // namespace tricklet
