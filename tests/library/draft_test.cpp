#include "library/draft.h"

#include <gtest/gtest.h>

#include "disk/native_file.h"
#include "library/board_store.h"
#include "library/library_choice.h"
#include "library/library_write.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kQuestion =
    "Board 7 in library Club was left with changes that had not been saved.";

class DraftTest : public LibraryTest {
 protected:
  DraftTest() {
    PutBoard(7);
    GetLibraryNames(session);
    SetMaxBoard(session, 24);
    SelectBoard(session, 7);
  }
  /// Leaves board 7 without its spade ace, as a window does that ends without a question.
  void LeaveChanged() {
    DraftKeeper keeper(session);
    Change();
  }
  void Change() {
    session.board.hands[Seat::North][Suit::Spades].Remove(Rank::Ace);
    session.board.handChanged = true;
  }
  /// Another start of the program.
  bool Offer() {
    Session next(host, store);
    next.settings = session.settings;
    GetLibraryNames(next);
    DraftKeeper keeper(next);
    const bool changed = OfferDrafts(next, keeper);
    shown = next.board;
    return changed;
  }
  /// Hidden names in the library.
  int Hidden() const {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(session.LibraryPath())) {
      count += PathText(entry.path().filename()).starts_with('.') ? 1 : 0;
    }
    return count;
  }

  Board shown;
};

TEST_F(DraftTest, IsOfferedAtTheNextStartUntilSomebodyDecides) {
  LeaveChanged();
  EXPECT_EQ(Stored(7).hands, OneSuitEach()) << "the board itself is as it was";
  EXPECT_TRUE(LibraryWrite::Begin(session)) << "sweeps what killed programs have left";
  host.ExpectAsk(kQuestion, "Changes that were not saved", Answer::Cancel);
  EXPECT_FALSE(Offer());
  host.ExpectAsk(kQuestion, "Changes that were not saved", Answer::Yes);
  EXPECT_TRUE(Offer());
  EXPECT_TRUE(shown.handChanged);
  EXPECT_EQ(shown.boardNumber, 7);
  EXPECT_EQ(shown.hands, session.board.hands);
  host.ExpectAsk(kQuestion, "Changes that were not saved", Answer::No);
  EXPECT_FALSE(Offer());
  EXPECT_EQ(host.recycled.size(), 1U);
  EXPECT_FALSE(Offer()) << "nothing is left to be offered";
  EXPECT_EQ(Hidden(), 0);
}

TEST_F(DraftTest, IsDroppedWhenTheBoardIsSavedOrGivenUp) {
  DraftKeeper keeper(session);
  for (const Answer answer : {Answer::Yes, Answer::No}) {
    Change();
    keeper.Keep();
    EXPECT_EQ(Hidden(), 1);
    ExpectUnsavedQuestion(answer);
    if (answer == Answer::Yes) host.ExpectAskWith("Overwrite existing board 7?", Answer::Yes);
    EXPECT_TRUE(SelectBoard(session, 8));
    keeper.Keep();
    EXPECT_EQ(Hidden(), 0);
    PutBoard(7);
    SelectBoard(session, 7);
  }
}

TEST_F(DraftTest, FollowsTheBoardAndTheLibrary) {
  DraftKeeper keeper(session);
  DraftKeeper other(session);
  Change();
  keeper.Keep();
  other.Keep();
  EXPECT_EQ(Hidden(), 2) << "two windows have a draft each";
  EXPECT_TRUE(RenameLibrary(session, "Team"));
  keeper.Keep();
  other.Keep();
  EXPECT_EQ(Hidden(), 2);
  EXPECT_TRUE(LoadHand(session));
  keeper.Keep();
  other.Keep();
  EXPECT_EQ(Hidden(), 0);
}

TEST_F(DraftTest, SavingItAsksBeforeItReplacesWhatWasStoredSince) {
  LeaveChanged();
  Board newer;
  WriteFile(session.BoardPath(7), WriteBoardText(newer));
  DraftKeeper keeper(session);
  EXPECT_TRUE(LoadHand(session));
  host.ExpectAskWith("Board 7", Answer::Yes);
  EXPECT_TRUE(OfferDrafts(session, keeper));
  host.ExpectAskWith("has been changed by another program", Answer::No);
  EXPECT_FALSE(SaveHand(session));
  EXPECT_EQ(ReadFile(session.BoardPath(7)), WriteBoardText(newer));
}

TEST_F(DraftTest, ADiskThatTakesNothingIsSaid) {
  DraftKeeper keeper(session);
  Change();
  fs::remove_all(session.LibraryPath());
  keeper.Keep();
  EXPECT_NE(keeper.Problem(), "");
  LoadHand(session);
  keeper.Keep();
  EXPECT_EQ(keeper.Problem(), "");
}

}  // namespace
}  // namespace tricklet::test
