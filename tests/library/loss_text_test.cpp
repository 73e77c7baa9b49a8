#include "library/loss_text.h"

#include "library/board_store.h"
#include "library/unsaved_changes.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

using LossText = test::LibraryTest;

TEST_F(LossText, NamesWhatIsNotSavedAndWhatASaveReplaces) {
  session.board.hands = test::OneSuitEach();
  EXPECT_EQ(UnsavedText(session), "Not saved: the deal.");
  EXPECT_EQ(ReplacedText(session), "") << "nothing is stored yet";
  ASSERT_TRUE(SaveHand(session));
  EXPECT_EQ(UnsavedText(session), "");
  ClearAll(session.board);
  session.board.calls.Add(Call::Pass());
  EXPECT_EQ(UnsavedText(session), "Not saved: the deal and the auction.");
  EXPECT_EQ(ReplacedText(session), "The stored deal would be replaced.");
}

TEST_F(LossText, CountsBoardsInRanges) {
  LibraryState library;
  EXPECT_EQ(BoardsAtStake(library, 1, 999, "would go"), "");
  for (const std::size_t number : {3U, 4U, 5U, 9U, 12U}) library.boardPresent.at(number) = true;
  EXPECT_EQ(BoardsAtStake(library, 4, 9, "would go"), "3 boards would go: 4-5, 9.");
  EXPECT_EQ(BoardsAtStake(library, 10, 999, "would go"), "1 board would go: 12.");
}

}  // namespace
}  // namespace tricklet
