#include "play/trick_grid.h"

#include <array>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/support/calls.h"
#include "tests/support/hands.h"
#include "tests/support/scripted_host.h"

namespace tricklet {
namespace {

/// Rows from West to South: "HQ> HK* H2 H4 | ...", ">" led, "*" wins, "-1" gave a trick away; "."
/// is a seat without a card, "?" the one to play, and the row in "[]" the current one.
std::string TextOf(const TrickGrid& grid) {
  std::ostringstream text;
  int number = 0;
  for (const TrickGrid::Row& row : grid.rows) {
    const bool current = number++ == grid.current;
    text << (number > 1 ? " | " : "") << (current ? "[" : "");
    for (const Seat seat : {Seat::West, Seat::North, Seat::East, Seat::South}) {
      if (seat != Seat::West) text << ' ';
      if (!row[seat]) {
        text << (current && grid.toPlay == seat ? '?' : '.');
        continue;
      }
      const TrickGrid::Cell& cell = *row[seat];
      text << "SHDC"[IndexOf(cell.card.suit)] << "AKQJT98765432"[IndexOf(cell.card.rank)]
           << (cell.led ? ">" : "") << (cell.wins ? "*" : "");
      if (cell.given > 0) text << -cell.given;
    }
    text << (current ? "]" : "");
  }
  return text.str();
}

Board BoardSeven() {
  Board board;
  board.boardNumber = 7;
  board.hands =
      test::HandsOf("N:AQ975.K86.KT2.J4 84.T732.AQ3.T652 KJT3.A4.9654.AK7 62.QJ95.J87.Q983");
  test::SetAuction(board, "4S P P P");
  return board;
}

TEST(TrickGrid, RowsOfTricks) {
  const struct {
    std::string steps;  // cards; "gather", "claim" and "undo"
    std::string rows;
    int cards;
    std::optional<Side> claimedBy = {};
  } kCases[] = {
      {"", "[? . . .]", 0},
      {"HQ", "[HQ>* ? . .]", 1},
      {"HQ HK H2", "[HQ> HK*-1 H2 ?]", 3},
      {"HQ HK H2 H4", "[HQ> HK*-1 H2 H4]", 4},
      {"HQ HK H2 H4 gather", "HQ> HK*-1 H2 H4 | [. ? . .]", 4},
      {"HQ HK H2 H4 C4", "HQ> HK*-1 H2 H4 | [. C4>* ? .]", 5},
      {"HQ HK H2 H4 C4 undo", "[HQ> HK*-1 H2 H4]", 4},
      {"HQ HK H2 H4 SQ S4 SK", "HQ> HK*-1 H2 H4 | [? SQ> S4 SK*]", 7},
      {"claim", "", 0, Side::EastWest},
      {"HQ HK H2 H4 C4 C2 claim", "HQ> HK*-1 H2 H4 | . C4> C2 .", 6, Side::NorthSouth},
      {"HQ HK H2 H4 C4 C2 claim undo", "HQ> HK*-1 H2 H4 | [. C4>* C2 ?]", 6},
  };
  test::ScriptedHost host;
  const std::array given{0, 1};  // no more is known
  for (const auto& each : kCases) {
    Board board = BoardSeven();
    NoTimer timer;
    CardPlay play(board, host, timer);
    EXPECT_EQ(TextOf(MakeTrickGrid(play, given)), "") << "before the play";
    ASSERT_TRUE(play.Start());
    std::istringstream steps(each.steps);
    for (std::string step; steps >> step;) {
      if (step == "gather") {
        play.QuitTrick();
      } else if (step == "claim") {
        play.Claim();
      } else if (step == "undo") {
        play.Undo();
      } else {
        ASSERT_TRUE(play.Play(test::CardOf(step))) << each.steps << ": " << step;
      }
    }
    const TrickGrid grid = MakeTrickGrid(play, given);
    EXPECT_EQ(TextOf(grid), each.rows) << each.steps;
    EXPECT_EQ(grid.cards, each.cards) << each.steps;
    EXPECT_EQ(grid.claimedBy, each.claimedBy) << each.steps;
    EXPECT_EQ(grid.AnyGiven(), each.cards > 1) << each.steps;
  }
}

TEST(TrickGrid, ARecordHasAllItsCardsAndTheRowOfTheOneSteppedTo) {
  RecordedPlay record{BoardSeven(), {}, {}};
  for (const char* card : {"HQ", "HK", "H2", "H4", "SQ", "S4", "DA"}) {  // South has spades
    record.cards.push_back(test::CardOf(card));
  }
  test::ScriptedHost host;
  const std::array given{0, 1, 0, 0, 0, 2};
  const std::pair<int, const char*> places[] = {
      {0, "[HQ> HK*-1 H2 H4] | . SQ> S4-2 ."},
      {4, "[HQ> HK*-1 H2 H4] | . SQ> S4-2 ."},
      {5, "HQ> HK*-1 H2 H4 | [. SQ> S4-2 .]"},
      {52, "HQ> HK*-1 H2 H4 | [. SQ> S4-2 .]"},
  };
  Replay replay(record, host);
  for (const auto& [place, rows] : places) {
    replay.GoTo(place);
    const TrickGrid grid = MakeRecordGrid(replay, given);
    EXPECT_EQ(TextOf(grid), rows) << place;
    EXPECT_EQ(grid.cards, std::min(place, 6));
  }
  record.cards.erase(record.cards.begin());
  EXPECT_EQ(TextOf(MakeRecordGrid(Replay(record, host), given)), "") << "the lead is not West's";
}

}  // namespace
}  // namespace tricklet
