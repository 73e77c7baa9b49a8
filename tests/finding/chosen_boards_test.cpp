// Boards copied, numbered anew and deleted: what stands where afterwards, and what is refused.
#include <gtest/gtest.h>

#include "finding/board_copies.h"
#include "finding/board_deletion.h"
#include "finding/board_renumbering.h"
#include "formats/results/lin_boards.h"
#include "formats/results/lin_file.h"
#include "library/board_notes.h"
#include "library/board_store.h"
#include "tests/support/calls.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

/// "Club" has the boards 1 to 3, of which 2 and 3 have notes, and 3 has results. Each is told by
/// its only bid: 1C, 2C, 3C.
class ChosenBoardsTest : public LibraryTest {
 protected:
  ChosenBoardsTest() {
    for (int number = 1; number <= 3; ++number) {
      Board board;
      board.boardNumber = number;
      board.hands = OneSuitEach();
      SetAuction(board, std::to_string(number) + "C P P P");
      WriteFile(session.BoardPath(number), WriteBoardText(board));
    }
    WriteFile(session.LibraryPath() / kNotesFile, "[2]\ntwo\n[3]\nthree\n");
    WriteFile(session.LibraryPath() / kLinFile, "[LIN]\nqx|o3|ah|Board 3|pn|a,b,c,d|\n");
    FindFiles(session);
    LoadHand(session);
  }

  /// "1:1C 2:2C(two) 3:(three)x1", with a bid where there is an auction, and the number of results.
  std::string Holds(const std::string& library) const {
    const auto path = session.FileLocation() / library;
    const BoardNotes notes = LoadNotesOf(path);
    const LinFile results = LoadLinDataOf(path);
    std::string text;
    for (int number = 1; number <= kLastBoardNumber; ++number) {
      Board board;
      board.boardNumber = number;
      const bool stored =
          ReadBoardText(ReadFile(path / BoardFileName(number)), board, TableReading::Always);
      const auto note = notes.find(number);
      const auto played = std::count_if(
          results.lin.begin(), results.lin.end(),
          [&](const std::string& record) { return BoardNumberOfLin(record) == number; });
      if (!stored && note == notes.end() && played == 0) continue;
      text += (text.empty() ? "" : " ") + std::to_string(number) + ":";
      if (stored) text += board.NumCalls() > 0 ? board.calls[0].Text() : "deal";
      if (note != notes.end()) text += "(" + note->second + ")";
      if (played > 0) text += "x" + std::to_string(played);
    }
    return text;
  }

  static constexpr const char* kAsItWas = "1:1C 2:2C(two) 3:3C(three)x1";
};

TEST_F(ChosenBoardsTest, NumbersAreFreeAndAsTheyWereAskedFor) {
  struct Case {
    std::vector<int> old;
    NumberPlan plan;
    std::string numbers;
  };
  const std::vector<Case> cases{
      {{3, 1}, {NewNumbering::Keep}, "3 1"},
      {{3, 3}, {NewNumbering::Keep}, "Board 3 is there already"},
      {{20, 21}, {NewNumbering::Keep}, "Boards 20-21 are there already"},
      {{3, 19, 16}, {NewNumbering::SameDeal, 1}, "3 19 16"},
      {{4, 36, 5, 16}, {NewNumbering::SameDeal, 5}, "36 52 5 16"},
      {{16, 17, 15}, {NewNumbering::SameDeal, 32}, "32 33 47"},
      {{9, 2}, {NewNumbering::InTurn, 7}, "7 8"},
      {{9, 2}, {NewNumbering::InTurn, 19}, "Board 20 is there already"},
      {{9, 2}, {NewNumbering::InTurn, 999}, "A library can have no board above 999"},
      {{1}, {NewNumbering::SameDeal, 999}, "A library can have no board above 999"}};
  for (const Case& each : cases) {
    const NewNumbers found = NumbersFor(each.old, each.plan, {20, 21});
    std::string text = found.fault;
    for (const int number : found.numbers) {
      text += (text.empty() ? "" : " ") + std::to_string(number);
    }
    EXPECT_EQ(text, each.numbers);
  }
}

TEST_F(ChosenBoardsTest, CopiesTakeNotesAndKeepTheAuctionOfTheirDealer) {
  host.ExpectTell("2 boards copied to the library Best");
  EXPECT_TRUE(CopyBoards(session, {{"Club", 3}, {"Club", 2}}, "Best", {NewNumbering::SameDeal, 4}));
  EXPECT_EQ(Holds("Best"), "18:2C(two) 19:3C(three)");
  EXPECT_EQ(Joined(session.libraryNames), "Best, Club");

  host.ExpectTell(
      "2 boards copied to the library Best; 1 without its auction, as the dealer is another one");
  EXPECT_TRUE(CopyBoards(session, {{"Club", 1}, {"Best", 19}}, "Best", {NewNumbering::InTurn, 22}));
  EXPECT_EQ(Holds("Best"), "18:2C(two) 19:3C(three) 22:deal 23:3C(three)");

  host.ExpectTell("Boards 18-19 are there already in the library Best");
  EXPECT_FALSE(
      CopyBoards(session, {{"Best", 18}, {"Best", 19}, {"Club", 1}}, "Best", {NewNumbering::Keep}));
  host.ExpectTell("A library cannot be named a/b");
  EXPECT_FALSE(CopyBoards(session, {{"Club", 1}}, "a/b", {NewNumbering::Keep}));
  EXPECT_EQ(Holds("Best"), "18:2C(two) 19:3C(three) 22:deal 23:3C(three)");
  EXPECT_EQ(Holds("Club"), kAsItWas);
}

TEST_F(ChosenBoardsTest, NumbersAnewWithNotesAndResults) {
  session.board.boardNumber = 3;
  LoadHand(session);
  host.ExpectTell("3 boards have new numbers, 2 without the auction, as the dealer is another one");
  // 19 has the dealer and the vulnerability of 3.
  EXPECT_TRUE(RenumberBoards(session, {3, 1, 2}, {NewNumbering::InTurn, 19}));
  EXPECT_EQ(Holds("Club"), "19:3C(three)x1 20:deal 21:deal(two)");
  EXPECT_EQ(Shown(), "Club 19 of 21, 3 stored");
  EXPECT_EQ(host.replaced,
            std::vector<std::string>{
                "Club before renumbering: 001.txt 002.txt 003.txt LIN.txt Notes.txt"});
}

TEST_F(ChosenBoardsTest, BoardsMayTakeEachOthersNumbers) {
  host.ExpectTell("2 boards have new numbers, 2 without the auction, as the dealer is another one");
  EXPECT_TRUE(RenumberBoards(session, {2, 1}, {NewNumbering::InTurn, 1}));
  EXPECT_EQ(Holds("Club"), "1:deal(two) 2:deal 3:3C(three)x1");
}

TEST_F(ChosenBoardsTest, WhatCannotBeNumberedAnewStaysAsItIs) {
  host.ExpectTellWith("The results of board 3 belong to another dealer or vulnerability.");
  EXPECT_FALSE(RenumberBoards(session, {2, 3}, {NewNumbering::InTurn, 5}));
  host.ExpectTell("Board 3 is there already");
  EXPECT_FALSE(RenumberBoards(session, {1, 2}, {NewNumbering::InTurn, 2}));
  EXPECT_EQ(Holds("Club"), kAsItWas);

  // The disk refuses one of the files: those written before it are as they were.
  std::filesystem::create_directories(session.BoardPath(7) / "in the way");
  host.ExpectAskWith("Is a directory", Answer::No);
  EXPECT_FALSE(RenumberBoards(session, {1, 2}, {NewNumbering::InTurn, 6}));
  std::filesystem::remove_all(session.BoardPath(7));
  EXPECT_EQ(Holds("Club"), kAsItWas);
}

TEST_F(ChosenBoardsTest, DeletesAfterAQuestion) {
  host.ExpectAsk("Do you wish to remove board 2?", "Tricklet", Answer::No);
  EXPECT_FALSE(DeleteBoards(session, {{"Club", 2}}));
  host.ExpectAsk("Do you wish to remove boards 1-2?", "Tricklet", Answer::Yes);
  host.ExpectTell("2 boards sent to the recycle bin");
  EXPECT_TRUE(DeleteBoards(session, {{"Club", 2}, {"Club", 1}}));
  EXPECT_EQ(host.recycled, (std::vector<std::string>{"001.txt", "002.txt"}));
  EXPECT_EQ(Holds("Club"), "2:(two) 3:3C(three)x1");
  EXPECT_EQ(Shown(), "Club 1 of 3, 1 stored");

  host.hasRecycleBin = false;
  host.ExpectAskWith("board 3?", Answer::Yes);
  host.ExpectTell("0 boards sent to the recycle bin, of 1");
  EXPECT_FALSE(DeleteBoards(session, {{"Club", 3}}));
  EXPECT_EQ(Holds("Club"), "2:(two) 3:3C(three)x1");
}

}  // namespace
}  // namespace tricklet::test
