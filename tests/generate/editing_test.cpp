#include "generate/editing.h"

#include <gtest/gtest.h>

#include "core/statistics.h"
#include "generate/deal.h"
#include "generate/rotation.h"
#include "tests/support/calls.h"
#include "tests/support/hands.h"

namespace tricklet {
namespace {

using test::HandsOf;

Board FullBoard() {
  Board board;
  RandomSource random(1);
  Random(board.hands, random);
  board.makeableValid = true;
  return board;
}

/// Some of the cards lie in the pack.
Board Partial() {
  Board board = FullBoard();
  for (const Seat seat : kAllSeats) board.hands[seat][static_cast<Suit>(seat)] = Holding();
  return board;
}

/// The board counts as edited from now on only.
void Settle(Board& board) {
  board.handChanged = false;
  board.makeableValid = true;
}

void ExpectEdited(const Board& board, bool edited = true) {
  EXPECT_EQ(board.handChanged, edited);
  EXPECT_EQ(board.makeableValid, !edited);
}

TEST(Swap, ExchangesHandsOrSuits) {
  const Board before = Partial();
  Board board = before;
  swap(board, Seat::West, Seat::North);
  const PerSeat<Seat> source{{Seat::West, Seat::East, Seat::South, Seat::North}};
  for (const Seat seat : kAllSeats) EXPECT_EQ(board.hands[seat], before.hands[source[seat]]);
  ExpectEdited(board);
  Settle(board);
  swap(board, Seat::North, Seat::West);
  EXPECT_EQ(board.hands, before.hands);
  SwapSuit(board, Suit::Spades, Suit::Clubs);
  for (const Seat seat : kAllSeats) {
    const auto [spades, hearts, diamonds, clubs] = before.hands[seat].values;
    EXPECT_EQ(board.hands[seat], (PerSuit<Holding>{{clubs, hearts, diamonds, spades}}));
  }
  ExpectEdited(board);
  board = before;
  SwapSuit(board, Suit::Hearts, Suit::Hearts);
  EXPECT_EQ(board.hands, before.hands);
  ExpectEdited(board);
}

TEST(Rotate, TakesTheAuctionAlongWhereItCan) {
  using enum Rotation;
  const struct {
    Rotation rotation;
    Seat north;  // who then has North's cards
    const char* before;
    const char* after;  // null: left as it was
    const char* contract;
  } kCases[] = {
      {Clockwise, Seat::East, "1S P P P", "P 1S P P P", "1S by East"},
      {HalfTurn, Seat::South, "1S P P P", "P P 1S P P P", "1S by South"},
      {AntiClockwise, Seat::West, "1S P P P", "P P P 1S P P P", "1S by West"},
      {AntiClockwise, Seat::West, "P 1S P P P", "1S P P P", "1S by North"},
      {Clockwise, Seat::East, "P P P 1H X P P P", "1H X P P P", "1Hx by North"},
      {HalfTurn, Seat::South, "P P 1H P 2H P P P", "1H P 2H P P P", "2H by North"},
      {HalfTurn, Seat::South, "P P P P", "P P P P", "All Pass"},
      {Clockwise, Seat::East, "", "", ""},
      {Clockwise, Seat::East, "P P", "P P P", ""},
      {Clockwise, Seat::East, "P P P", nullptr, ""},                  // a pass more would end it
      {Clockwise, Seat::East, "P P P P 1S", nullptr, "1S by North"},  // it was no legal auction
  };
  for (const auto& c : kCases) {
    Board board = Partial();
    test::SetAuction(board, c.before);
    const Board before = board;
    Board expected = board;
    test::SetAuction(expected, c.after == nullptr ? c.before : c.after);
    EXPECT_EQ(Rotate(board, c.rotation, true), c.after != nullptr) << c.before;
    EXPECT_EQ(board.calls, expected.calls) << c.before;
    EXPECT_EQ(ContractLabel(board), c.contract) << c.before;
    for (const Seat seat : kAllSeats) {
      EXPECT_EQ(board.hands[SeatAfter(seat, IndexOf(c.north))], before.hands[seat]) << c.before;
    }
    ExpectEdited(board);
  }
  Board board;
  test::SetAuction(board, "1S P P P");
  EXPECT_TRUE(Rotate(board, Clockwise));
  EXPECT_EQ(board.NumCalls(), 4) << "the auction stays unless asked";
  while (!board.calls.Full()) board.calls.Add(Call::Pass());
  EXPECT_FALSE(Rotate(board, Clockwise, true)) << "no room";
  EXPECT_TRUE(board.calls.Full());
}

TEST(MoveCard, BetweenHandsAndPack) {
  const Card ace{Suit::Hearts, Rank::Ace};
  Board board;
  for (const std::optional<Seat> to :
       {std::optional(Seat::West), std::optional(Seat::North), std::optional<Seat>()}) {
    for (const bool moves : {true, false}) {
      Settle(board);
      EXPECT_TRUE(MoveCard(board, ace, to));
      EXPECT_EQ(SeatHolding(board.hands, ace), to ? IndexOf(*to) : -1);
      ExpectEdited(board, moves);
    }
  }
  Settle(board);
  board.hands[Seat::East][Suit::Spades] = Holding::FromBits(Holding::kAllBits);
  EXPECT_FALSE(MoveCard(board, ace, Seat::East)) << "a fourteenth card";
  ExpectEdited(board, false);
  EXPECT_TRUE(MoveCard(board, {Suit::Spades, Rank::Two}, Seat::East)) << "it is there already";
  EXPECT_TRUE(MoveCard(board, {Suit::Spades, Rank::Two}, std::nullopt));
  EXPECT_TRUE(MoveCard(board, ace, Seat::East));
}

TEST(SetHand, ReadsOrRefusesWithTheReason) {
  const PerSuit<Holding> expected = HandsOf("N:AKT2.QJ5..98 - - -")[Seat::North];
  Board board;
  for (const char* text : {"AKT2.QJ5.-.98", "akt2.jq5..98", " AK102.QJ5.-.98 ", "2K10A.5QJ..89"}) {
    board.hands = {};
    for (const bool changes : {true, false}) {
      Settle(board);
      EXPECT_EQ(SetHand(board, Seat::South, text).value_or(""), "");
      EXPECT_EQ(board.hands[Seat::South], expected) << text;
      ExpectEdited(board, changes);
    }
  }
  const Board before = board;
  const struct {
    const char* text;
    const char* reason;
  } kRefused[] = {{"AK.QJ.T", "four suits"},
                  {"AK.QJ.T.9.8", "four suits"},
                  {"AK1.-.-.-", "1 does not begin with a rank"},
                  {"A-.-.-.-", "- does not begin"},
                  {"A\xFF.-.-.-", "ÿ does not begin"},
                  {"AKA.-.-.-", "♠A is named twice"},
                  {"-.10T.-.-", "♥10 is named twice"},
                  {"AKQJT98765432.A.-.-", "not 14"},
                  {"3.-.-.KT98", "♣9 is held by South"}};
  for (const auto& c : kRefused) {
    const std::string reason = SetHand(board, Seat::North, c.text).value_or("");
    EXPECT_NE(reason.find(c.reason), std::string::npos) << c.text << ": " << reason;
    EXPECT_EQ(board.hands, before.hands) << c.text;
  }
  EXPECT_FALSE(SetHand(board, Seat::North, "A.-.-.9", TakeCards::FromAllSeats));
  EXPECT_EQ(board.hands, HandsOf("N:A...9 - KT2.QJ5..8 -"));
  ExpectEdited(board);
}

TEST(FillFourthHand, OnlyWhenThreeAreFull) {
  const Board full = FullBoard();
  EditHistory history;
  for (const Seat seat : kAllSeats) {
    Board board = full;
    board.hands[seat][Suit::Hearts] = board.hands[seat][Suit::Clubs] = Holding();
    const Board before = board;
    ASSERT_TRUE(FillFourthHand(board, history));
    EXPECT_EQ(board.hands, full.hands);
    ExpectEdited(board);
    ASSERT_TRUE(UndoFill(board, history));
    EXPECT_EQ(board.hands, before.hands);
  }
  for (Board board : {full, Partial()}) {
    EXPECT_FALSE(FillFourthHand(board, history));
    ExpectEdited(board, false);
    EXPECT_FALSE(CanUndoFill(board, history));
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
  const HandTable full = board.hands;
  EXPECT_TRUE(GetStats(full).allHandsComplete);
  Settle(board);
  EXPECT_TRUE(Fill(board, history, random)) << "a full deal";
  EXPECT_EQ(board.hands, full);
  EXPECT_TRUE(board.makeableValid);
  EXPECT_TRUE(board.handChanged);
  board.handChanged = false;
  ASSERT_TRUE(UndoFill(board, history));
  EXPECT_EQ(board.hands, before.hands);
  EXPECT_TRUE(board.makeableValid && board.handChanged);
  EXPECT_FALSE(UndoFill(board, history)) << "once only";

  Clear(board, history);
  ExpectEdited(board);
  EXPECT_FALSE(HasCards(board.hands));
  EXPECT_EQ(board.NumCalls(), 0);
  Board other = board;
  other.boardNumber = 2;
  EXPECT_FALSE(UndoClear(other, history)) << "another board";
  Clear(board, history);  // of nothing
  ASSERT_TRUE(Fill(board, history, random));
  board.playMode = true;
  board.handChanged = false;
  ASSERT_TRUE(UndoClear(board, history));
  EXPECT_EQ(board.hands, before.hands);
  EXPECT_EQ(board.calls, before.calls);
  EXPECT_EQ(board.contract, "1C");
  EXPECT_TRUE(board.makeableValid && board.handChanged && !board.playMode);
  EXPECT_FALSE(UndoFill(board, history)) << "that fill is gone";

  test::SetAuction(board, "P");
  board.hands = {};
  Clear(board, history);  // of calls alone
  ASSERT_TRUE(UndoClear(board, history));
  EXPECT_EQ(board.NumCalls(), 1);
  for (const Suit suit : {Suit::Spades, Suit::Hearts}) {
    board.hands[Seat::North][suit] = Holding::FromBits(Holding::kAllBits);
  }
  EXPECT_FALSE(Fill(board, history, random)) << "North has 26 cards";
}

}  // namespace
}  // namespace tricklet
