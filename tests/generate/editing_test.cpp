#include "generate/editing.h"

#include <vector>

#include <gtest/gtest.h>

#include "core/statistics.h"
#include "generate/deal.h"
#include "generate/rotation.h"
#include "tests/support/calls.h"
#include "tests/support/hands.h"

namespace tricklet {
namespace {

using test::HandsOf;

class Editing : public testing::Test {
 protected:
  /// A saved board with a table; some of its cards lie in the pack.
  Editing() {
    Random(full, random);
    board.hands = full;
    for (const Seat seat : kAllSeats) board.hands[seat][static_cast<Suit>(seat)] = Holding();
    before = board.hands;
    Settle();
  }
  void Settle() {
    board.handChanged = false;
    board.makeableValid = true;
  }
  /// The board was edited, or was not, since it was settled; it is settled again.
  void ExpectEdited(bool edited = true) {
    EXPECT_EQ(board.handChanged, edited);
    EXPECT_EQ(board.makeableValid, !edited);
    Settle();
  }
  /// What the settled board shows after `act`: "refused: empty, 0 calls, changed, table".
  std::string After(const std::string& act) {
    Settle();
    bool done = true;
    if (act == "clear") Clear(board, history);
    if (act == "fill") done = Fill(board, history, random);
    if (act == "fill fourth") done = FillFourthHand(board, history);
    if (act == "undo clear") done = UndoClear(board, history);
    if (act == "undo fill") done = UndoFill(board, history);
    std::string hands = HasCards(board.hands) ? "other" : "empty";
    if (GetStats(board.hands).allHandsComplete) hands = "full";
    if (board.hands == before) hands = "start";
    return (done ? "" : "refused: ") + hands + ", " + std::to_string(board.NumCalls()) + " calls" +
           (board.handChanged ? ", changed" : "") + (board.makeableValid ? ", table" : "");
  }

  RandomSource random{1};
  HandTable full;
  Board board;
  HandTable before;
  EditHistory history;
};

TEST_F(Editing, ExchangesHandsOrSuits) {
  swap(board, Seat::West, Seat::North);
  const auto [north, east, south, west] = before.values;
  EXPECT_EQ(board.hands, (HandTable{{west, east, south, north}}));
  ExpectEdited();
  board.hands = before;
  SwapSuit(board, Suit::Spades, Suit::Clubs);
  for (const Seat seat : kAllSeats) {
    const auto [spades, hearts, diamonds, clubs] = before[seat].values;
    EXPECT_EQ(board.hands[seat], (PerSuit<Holding>{{clubs, hearts, diamonds, spades}}));
  }
  ExpectEdited();
}

TEST_F(Editing, RotatesWithTheAuctionWhereItCan) {
  using enum Rotation;
  const struct {
    Rotation rotation;
    int steps;
    const char* calls;
    const char* after;  // null: left as it was
    const char* contract;
  } kCases[] = {
      {Clockwise, 1, "1S P P P", "P 1S P P P", "1S by East"},
      {AntiClockwise, 3, "1S P P P", "P P P 1S P P P", "1S by West"},
      {AntiClockwise, 3, "P 1S P P P", "1S P P P", "1S by North"},
      {Clockwise, 1, "P P P 1H X P P P", "1H X P P P", "1Hx by North"},
      {HalfTurn, 2, "P P P P", "P P P P", "All Pass"},
      {Clockwise, 1, "", "", ""},
      {Clockwise, 1, "P P", "P P P", ""},
      {Clockwise, 1, "P P P", nullptr, ""},                  // a pass more would end it
      {Clockwise, 1, "P P P P 1S", nullptr, "1S by North"},  // it was no legal auction
  };
  for (const auto& c : kCases) {
    board.hands = before;
    Board expected;
    test::SetAuction(expected, c.after == nullptr ? c.calls : c.after);
    test::SetAuction(board, c.calls);
    EXPECT_EQ(Rotate(board, c.rotation, true), c.after != nullptr) << c.calls;
    EXPECT_EQ(board.calls, expected.calls) << c.calls;
    EXPECT_EQ(ContractLabel(board), c.contract) << c.calls;
    for (const Seat seat : kAllSeats) {
      EXPECT_EQ(board.hands[SeatAfter(seat, c.steps)], before[seat]) << c.calls;
    }
    ExpectEdited();
  }
  EXPECT_TRUE(Rotate(board, Clockwise));
  EXPECT_EQ(board.NumCalls(), 5) << "the auction stays unless asked";
  test::SetAuction(board, "1S");
  while (!board.calls.Full()) board.calls.Add(Call::Pass());
  EXPECT_FALSE(Rotate(board, Clockwise, true)) << "no room";
}

TEST_F(Editing, MovesACardBetweenHandsAndPack) {
  const Card ace{Suit::Hearts, Rank::Ace};
  board.hands = HandsOf("N:- AKQJT98765432... - -");
  for (const auto to : std::vector<std::optional<Seat>>{Seat::West, Seat::North, std::nullopt}) {
    for (const bool moves : {true, false}) {
      EXPECT_TRUE(MoveCard(board, ace, to));
      EXPECT_EQ(SeatHolding(board.hands, ace), to ? IndexOf(*to) : -1);
      ExpectEdited(moves);
    }
  }
  EXPECT_FALSE(MoveCard(board, ace, Seat::East)) << "a fourteenth card";
  ExpectEdited(false);
  EXPECT_TRUE(MoveCard(board, {Suit::Spades, Rank::Two}, Seat::East)) << "it is there already";
  EXPECT_TRUE(MoveCard(board, {Suit::Spades, Rank::Two}, std::nullopt));
  EXPECT_TRUE(MoveCard(board, ace, Seat::East));
}

TEST_F(Editing, ReadsAHandOrRefusesItWithTheReason) {
  const HandTable expected = HandsOf("N:- - AKT2.QJ5..98 -");
  for (const char* text : {"AKT2.QJ5.-.98", "akt2.jq5..98", " 2K10A.5QJ.-.89 "}) {
    board.hands = {};
    for (const bool changes : {true, false}) {
      EXPECT_EQ(SetHand(board, Seat::South, text), std::nullopt);
      EXPECT_EQ(board.hands, expected) << text;
      ExpectEdited(changes);
    }
  }
  const std::pair<const char*, const char*> kRefused[] = {
      {"AK.QJ.T", "four suits"},           {"AK1.-.-.-", "1 does not begin with a rank"},
      {"A\xFF.-.-.-", "ÿ does not begin"}, {"-.10T.-.-", "♥10 is named twice"},
      {"AKQJT98765432.A.-.-", "not 14"},   {"3.-.-.KT98", "♣9 is held by South"}};
  for (const auto& [text, told] : kRefused) {
    const std::string reason = SetHand(board, Seat::North, text).value_or("");
    EXPECT_NE(reason.find(told), std::string::npos) << text << ": " << reason;
    EXPECT_EQ(board.hands, expected) << text;
  }
  EXPECT_FALSE(SetHand(board, Seat::North, "A.-.-.9", TakeCards::FromAllSeats));
  EXPECT_EQ(board.hands, HandsOf("N:A...9 - KT2.QJ5..8 -"));
  ExpectEdited();
}

TEST_F(Editing, FillsTheFourthHand) {
  EXPECT_EQ(After("fill fourth"), "refused: start, 0 calls, table");
  board.hands = full;
  EXPECT_EQ(After("fill fourth"), "refused: full, 0 calls, table");
  EXPECT_FALSE(CanUndoFill(board, history));
  for (const Seat seat : kAllSeats) {
    board.hands = full;
    board.hands[seat][Suit::Hearts] = board.hands[seat][Suit::Clubs] = Holding();
    const HandTable open = board.hands;
    EXPECT_EQ(After("fill fourth"), "full, 0 calls, changed");
    ASSERT_TRUE(UndoFill(board, history));
    EXPECT_EQ(board.hands, open);
  }
}

TEST_F(Editing, UndoesClearAndFill) {
  test::SetAuction(board, "1C P P P");
  const std::pair<const char*, const char*> kSteps[] = {
      {"undo clear", "refused: start, 4 calls, table"},
      {"undo fill", "refused: start, 4 calls, table"},
      {"fill", "full, 4 calls, changed"},
      {"fill", "full, 4 calls, changed, table"},  // it was full
      {"undo fill", "start, 4 calls, changed, table"},
      {"undo fill", "refused: start, 4 calls, table"},
      {"clear", "empty, 0 calls, changed"},
      {"clear", "empty, 0 calls, changed"},  // it was empty
      {"fill", "full, 0 calls, changed"},
      {"undo clear", "start, 4 calls, changed, table"},
      {"undo fill", "refused: start, 4 calls, table"},  // that fill is gone
  };
  for (const auto& [act, shown] : kSteps) {
    EXPECT_EQ(After(act), shown) << act;
  }
  board.hands = {};
  EXPECT_EQ(After("clear"), "empty, 0 calls, changed");  // of calls alone
  board.boardNumber = 2;
  EXPECT_EQ(After("undo clear"), "refused: empty, 0 calls, table") << "another board";
  board.boardNumber = 1;
  board.playMode = true;
  EXPECT_EQ(After("undo clear"), "empty, 4 calls, changed, table");
  EXPECT_FALSE(board.playMode);
  EXPECT_EQ(ContractLabel(board), "1C by North");
  board.hands = HandsOf("N:AKQJT98765432.A.. - - -");
  EXPECT_EQ(After("fill"), "refused: other, 4 calls, table") << "North has fourteen cards";
}

}  // namespace
}  // namespace tricklet
