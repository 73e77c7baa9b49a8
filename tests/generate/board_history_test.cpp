#include "generate/board_history.h"

#include <gtest/gtest.h>

#include "generate/rotation.h"
#include "tests/support/calls.h"
#include "tests/support/records.h"

namespace tricklet {
namespace {

class BoardHistoryTest : public testing::Test {
 protected:
  BoardHistoryTest() {
    for (int index = 0; index < kCardsInPack; ++index) {
      AddCard(board.hands, Card::FromIndex(index), SeatAfter(Seat::North, index % kSeats));
    }
    Note("");
  }
  void Note(const char* step) { history.Note("Club/1", board, edits, step); }
  void Turn(Rotation rotation) {
    ASSERT_TRUE(Rotate(board, rotation, false));
    board.handChanged = true;
    Note("rotate");
  }

  Board board;
  EditHistory edits;
  BoardHistory history;
};

TEST_F(BoardHistoryTest, EveryStepCanBeUndoneAndDoneAgain) {
  const HandTable dealt = board.hands;
  Turn(Rotation::Clockwise);
  const HandTable turned = board.hands;
  Clear(board, edits);
  Note("clear");
  EXPECT_TRUE(CanUndoClear(board, edits));
  EXPECT_EQ(history.UndoStep() + history.RedoStep(), "clear");

  ASSERT_TRUE(history.Undo(board, edits));
  EXPECT_TRUE(board.hands == turned && board.handChanged);
  EXPECT_FALSE(CanUndoClear(board, edits)) << "the button of the clear follows";
  ASSERT_TRUE(history.Undo(board, edits));
  EXPECT_TRUE(board.hands == dealt && !board.handChanged) << "as it is stored";
  EXPECT_FALSE(history.Undo(board, edits));
  ASSERT_TRUE(history.Redo(board, edits) && history.Redo(board, edits));
  EXPECT_FALSE(HasCards(board.hands));
  EXPECT_FALSE(history.Redo(board, edits));

  UndoClear(board, edits);
  Note("undo clear");
  EXPECT_EQ(history.UndoStep() + " " + history.RedoStep(), "rotate clear");
}

TEST_F(BoardHistoryTest, AnotherStepForgetsWhatWasUndone) {
  Turn(Rotation::Clockwise);
  history.Undo(board, edits);
  test::SetAuction(board, "1S P P P");
  board.handChanged = true;
  Note("auction");
  EXPECT_EQ(history.UndoStep() + history.RedoStep(), "auction");
}

TEST_F(BoardHistoryTest, EndsWhenTheBoardIsLeftOrReadAfresh) {
  for (const char* place : {"Club/2", "Club/1"}) {
    SCOPED_TRACE(place);
    Turn(Rotation::Clockwise);
    swap(board, Seat::North, Seat::East);
    history.Note(place, board, edits, "");
    EXPECT_EQ(history.UndoStep(), "");
    EXPECT_FALSE(history.CanRevert());
    history.Note("Club/1", board, edits, "");
  }
}

TEST_F(BoardHistoryTest, ASavedBoardIsUnsavedAfterAnUndoAndCanBeReverted) {
  Turn(Rotation::Clockwise);
  const HandTable saved = board.hands;
  board.handChanged = false;
  Note("");
  EXPECT_EQ(history.UndoStep(), "rotate") << "saving is no step";
  history.Undo(board, edits);
  EXPECT_TRUE(board.handChanged && history.CanRevert());
  ASSERT_TRUE(history.Revert(board));
  Note("revert");
  EXPECT_TRUE(board.hands == saved && !board.handChanged && !history.CanRevert());
}

}  // namespace
}  // namespace tricklet
