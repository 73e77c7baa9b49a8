#include "generate/editing.h"

#include <algorithm>
#include <functional>
#include <vector>

#include <gtest/gtest.h>

#include "core/fault.h"
#include "core/statistics.h"
#include "generate/deal.h"
#include "generate/hand_text.h"
#include "generate/rotation.h"
#include "tests/support/calls.h"

namespace tricklet {
namespace {

/// A saved board with a table; `cards` of it dealt at random, the others in the pack.
Board BoardWith(int cards, RandomSource& random) {
  Board board;
  Random(board.hands, random);
  for (int index = cards; index < kCardsInPack; ++index) {
    const Card card = Card::FromIndex(index * 7 % kCardsInPack);
    for (const Seat seat : kAllSeats) board.hands[seat][card.suit].Remove(card.rank);
  }
  board.makeableValid = true;
  return board;
}

Board Partial() {
  RandomSource random(1);
  return BoardWith(30, random);
}

/// No card is in two hands, and the board counts as edited.
void ExpectEdited(const Board& board) {
  EXPECT_TRUE(board.handChanged);
  EXPECT_FALSE(board.makeableValid);
  const Statistics statistics = GetStats(board.hands);
  int cards = 0;
  for (const int count : statistics.seatCardCount) cards += count;
  for (const Holding missing : statistics.missingCards) cards += missing.Count();
  EXPECT_EQ(cards, kCardsInPack);
}

Holding Ranks(const char* text) {
  return AddSpace(text);
}

TEST(Swap, MovesHandsAsNumbered) {
  const Board before = Partial();
  const struct {
    int from;
    int to;
    PerSeat<int> source;  // whose cards each seat then holds
  } kCases[] = {{0, 1, {{1, 0, 2, 3}}}, {3, 0, {{3, 1, 2, 0}}}, {2, 2, {{0, 1, 2, 3}}},
                {4, 0, {{3, 0, 1, 2}}}, {5, 9, {{1, 2, 3, 0}}}, {6, -1, {{2, 3, 0, 1}}}};
  for (const auto& c : kCases) {
    Board board = before;
    swap(board, c.from, c.to);
    for (const Seat seat : kAllSeats) {
      EXPECT_EQ(board.hands[seat], before.hands[static_cast<Seat>(c.source[seat])]) << c.from;
    }
    ExpectEdited(board);
  }
  for (const auto& [from, to] : {std::pair(-1, 0), {7, 0}, {0, 4}, {3, -1}}) {
    Board board = before;
    EXPECT_THROW(swap(board, from, to), Fault);
    EXPECT_EQ(board.hands, before.hands);
    EXPECT_FALSE(board.handChanged);
  }
}

TEST(Swap, AnySequenceIsUndoneByItsInverse) {
  RandomSource random(2);
  for (int round = 0; round < 500; ++round) {
    const Board before = BoardWith(RandomBetween(0, kCardsInPack, random), random);
    Board board = before;
    std::vector<std::function<void()>> inverses;
    for (int step = 0; step < 12; ++step) {
      const int from = RandomBetween(0, 6, random);
      const int to = RandomBetween(0, 3, random);
      const int inverse = from == 4 ? 5 : from == 5 ? 4 : from;
      if (RandomBetween(0, 1, random) == 0) {
        swap(board, from, to);
        inverses.emplace_back([&board, inverse, to] { swap(board, inverse, to); });
      } else {
        const auto suit1 = static_cast<Suit>(from % kSuits);
        const auto suit2 = static_cast<Suit>(to);
        SwapSuit(board, suit1, suit2);
        inverses.emplace_back([&board, suit1, suit2] { SwapSuit(board, suit2, suit1); });
      }
      ExpectEdited(board);
    }
    std::reverse(inverses.begin(), inverses.end());
    for (const auto& inverse : inverses) inverse();
    ASSERT_EQ(board.hands, before.hands);
  }
}

TEST(SwapSuit, ExchangesRankForRankInEveryHand) {
  const Board before = Partial();
  Board board = before;
  SwapSuit(board, Suit::Spades, Suit::Clubs);
  for (const Seat seat : kAllSeats) {
    EXPECT_EQ(board.hands[seat][Suit::Spades], before.hands[seat][Suit::Clubs]);
    EXPECT_EQ(board.hands[seat][Suit::Clubs], before.hands[seat][Suit::Spades]);
    EXPECT_EQ(board.hands[seat][Suit::Hearts], before.hands[seat][Suit::Hearts]);
  }
  board = before;
  SwapSuit(board, Suit::Hearts, Suit::Hearts);
  EXPECT_EQ(board.hands, before.hands);
  ExpectEdited(board);
}

TEST(Rotate, TakesTheAuctionAlongWhereItCan) {
  const struct {
    Rotation rotation;
    const char* before;
    const char* after;  // null: left as it was
    const char* contract;
  } kCases[] = {
      {Rotation::Clockwise, "1S P P P", "P 1S P P P", "1S by East"},
      {Rotation::HalfTurn, "1S P P P", "P P 1S P P P", "1S by South"},
      {Rotation::AntiClockwise, "1S P P P", "P P P 1S P P P", "1S by West"},
      {Rotation::AntiClockwise, "P 1S P P P", "1S P P P", "1S by North"},
      {Rotation::Clockwise, "P P P 1H X P P P", "1H X P P P", "1Hx by North"},
      {Rotation::HalfTurn, "P P 1H P 2H P P P", "1H P 2H P P P", "2H by North"},
      {Rotation::HalfTurn, "P P P P", "P P P P", "All Pass"},
      {Rotation::Clockwise, "", "", ""},
      {Rotation::Clockwise, "P P", "P P P", ""},
      {Rotation::Clockwise, "P P P", nullptr, ""},                  // the next pass would end it
      {Rotation::Clockwise, "P P P P 1S", nullptr, "1S by North"},  // no legal auction before
  };
  for (const auto& c : kCases) {
    Board board;
    RandomSource random(3);
    Random(board.hands, random);
    test::SetAuction(board, c.before);
    Board expected = board;
    test::SetAuction(expected, c.after == nullptr ? c.before : c.after);
    const HandTable hands = board.hands;
    EXPECT_EQ(Rotate(board, c.rotation, true), c.after != nullptr) << c.before;
    EXPECT_EQ(board.calls, expected.calls) << c.before;
    EXPECT_EQ(ContractLabel(board), c.contract) << c.before;
    EXPECT_NE(board.hands, hands);
    ExpectEdited(board);
  }
  Board board;
  test::SetAuction(board, "1S P P P");
  EXPECT_TRUE(Rotate(board, Rotation::Clockwise));
  EXPECT_EQ(board.NumCalls(), 4) << "the auction stays unless asked";
  while (!board.calls.Full()) board.calls.Add(Call::Pass());
  EXPECT_FALSE(Rotate(board, Rotation::Clockwise, true)) << "no room";
  EXPECT_TRUE(board.calls.Full());
}

TEST(MoveCard, BetweenHandsAndPack) {
  const Card ace{Suit::Hearts, Rank::Ace};
  Board board;
  for (const std::optional<Seat> to :
       {std::optional(Seat::West), std::optional(Seat::North), std::optional<Seat>()}) {
    board.handChanged = false;
    board.makeableValid = true;
    EXPECT_TRUE(MoveCard(board, ace, to));
    EXPECT_EQ(SeatHolding(board.hands, ace), to ? IndexOf(*to) : -1);
    ExpectEdited(board);
    const Board there = board;
    board.handChanged = false;
    board.makeableValid = true;
    EXPECT_TRUE(MoveCard(board, ace, to));
    EXPECT_EQ(board.hands, there.hands);
    EXPECT_FALSE(board.handChanged) << "it was there already";
    EXPECT_TRUE(board.makeableValid);
  }
  board = Board();
  board.hands[Seat::East][Suit::Spades] = Holding::FromBits(Holding::kAllBits);
  EXPECT_FALSE(MoveCard(board, ace, Seat::East)) << "a fourteenth card";
  EXPECT_FALSE(board.handChanged);
  EXPECT_TRUE(MoveCard(board, {Suit::Spades, Rank::Two}, Seat::East)) << "it is there already";
  EXPECT_TRUE(MoveCard(board, {Suit::Spades, Rank::Two}, std::nullopt));
  EXPECT_TRUE(MoveCard(board, ace, Seat::East));
}

TEST(SetHand, ReadsOrRefusesWithTheReason) {
  Board board;
  for (const char* text : {"AKT2.QJ5.-.98", "akt2.jq5..98", " AK102.QJ5.-.98 ", "2K10A.5QJ..89"}) {
    board.hands[Seat::South].fill(Ranks("7"));
    EXPECT_EQ(SetHand(board, Seat::South, text).value_or(""), "");
    const PerSuit<Holding> expected{{Ranks("AK12"), Ranks("QJ5"), Holding(), Ranks("98")}};
    EXPECT_EQ(board.hands[Seat::South], expected) << text;
    ExpectEdited(board);
    board.handChanged = false;
    EXPECT_FALSE(SetHand(board, Seat::South, text));
    EXPECT_FALSE(board.handChanged) << "the same hand";
  }
  const Board before = board;
  const struct {
    const char* text;
    const char* reason;
  } kRefused[] = {{"AK.QJ.T", "four suits"},
                  {"AK.QJ.T.9.8", "four suits"},
                  {"", "four suits"},
                  {"AK1.-.-.-", "1 does not begin with a rank"},
                  {"AX.-.-.-", "X does not begin"},
                  {"A-.-.-.-", "- does not begin"},
                  {"AKA.-.-.-", "\u2660A is named twice"},
                  {"-.10T.-.-", "\u266510 is named twice"},
                  {"AKQJT98765432.A.-.-", "not 14"},
                  {"3.-.-.KT9",
                   "\u2663"
                   "9 is held by South"},
                  {"A\xFF.-.-.-", "does not begin"}};
  for (const auto& c : kRefused) {
    const auto reason = SetHand(board, Seat::North, c.text);
    EXPECT_NE(reason.value_or("").find(c.reason), std::string::npos) << c.text << *reason;
    EXPECT_EQ(board.hands, before.hands) << c.text;
  }
  EXPECT_FALSE(SetHand(board, Seat::North, "A.-.-.9", TakeCards::FromAllSeats));
  EXPECT_EQ(board.hands[Seat::South][Suit::Spades], Ranks("K12"));
  EXPECT_EQ(board.hands[Seat::South][Suit::Clubs], Ranks("8"));
  ExpectEdited(board);
}

TEST(FillFourthHand, OnlyWhenThreeAreFull) {
  RandomSource random(4);
  Board full;
  Random(full.hands, random);
  for (const Seat seat : kAllSeats) {
    for (const Suit kept : kAllSuits) {
      Board board = full;
      for (const Suit suit : kAllSuits) {
        if (suit != kept) board.hands[seat][suit] = Holding();
      }
      const Board before = board;
      EditHistory history;
      ASSERT_TRUE(FillFourthHand(board, history));
      EXPECT_EQ(board.hands, full.hands);
      ExpectEdited(board);
      ASSERT_TRUE(UndoFill(board, history));
      EXPECT_EQ(board.hands, before.hands);
    }
  }
  EditHistory history;
  Board partial = Partial();
  for (Board* board : {&full, &partial}) {
    EXPECT_FALSE(FillFourthHand(*board, history));
    EXPECT_FALSE(board->handChanged);
    EXPECT_FALSE(CanUndoFill(*board, history));
  }
}

TEST(EditHistory, UndoesClearAndFill) {
  RandomSource random(5);
  Board board = Partial();
  test::SetAuction(board, "1C P P P");
  const Board before = board;
  EditHistory history;
  EXPECT_FALSE(UndoFill(board, history));
  EXPECT_FALSE(UndoClear(board, history));

  ASSERT_TRUE(Fill(board, history, random));
  ExpectEdited(board);
  EXPECT_TRUE(GetStats(board.hands).allHandsComplete);
  ASSERT_TRUE(UndoFill(board, history));
  EXPECT_EQ(board.hands, before.hands);
  EXPECT_TRUE(board.makeableValid);
  EXPECT_FALSE(UndoFill(board, history)) << "once only";

  Clear(board, history);
  ExpectEdited(board);
  EXPECT_FALSE(HasCards(board.hands));
  EXPECT_EQ(board.NumCalls(), 0);
  Board other = board;
  other.boardNumber = 2;
  EXPECT_FALSE(UndoClear(other, history)) << "another board";
  Clear(board, history);  // nothing this time
  ASSERT_TRUE(UndoClear(board, history));
  EXPECT_EQ(board.hands, before.hands);
  EXPECT_EQ(board.calls, before.calls);
  EXPECT_EQ(board.contract, "1C");
  EXPECT_TRUE(board.makeableValid);
  EXPECT_TRUE(board.handChanged);

  ASSERT_TRUE(Fill(board, history, random));
  board.makeableValid = true;
  board.handChanged = false;
  const HandTable full = board.hands;
  EXPECT_TRUE(Fill(board, history, random)) << "a full deal";
  EXPECT_EQ(board.hands, full);
  EXPECT_TRUE(board.makeableValid);
  EXPECT_TRUE(board.handChanged);

  Clear(board, history);
  ASSERT_TRUE(Fill(board, history, random));
  ASSERT_TRUE(UndoClear(board, history));
  EXPECT_FALSE(UndoFill(board, history)) << "that fill is gone";
  EXPECT_EQ(board.hands, full);
  AddCard(board.hands, SeatHolding(full, {}) == 0 ? Card{Suit::Clubs, Rank::Two} : Card{},
          Seat::North);
  board.hands[Seat::East].fill(Holding());
  EXPECT_FALSE(Fill(board, history, random)) << "North has fourteen cards";
}

}  // namespace
}  // namespace tricklet
