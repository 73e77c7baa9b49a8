#include "library/board_store.h"

#include <gtest/gtest.h>

#include "core/fault.h"
#include "library/board_file.h"
#include "library/file_io.h"
#include "tests/support/fake_solver.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;
using test::LibraryTest;
using test::ReadFile;
using test::WriteFile;

constexpr const char* kQuestion = "Overwrite existing board 7?";
constexpr const char* kTitle = "Hand already in library";

class BoardStore : public LibraryTest {
 protected:
  BoardStore() {
    session.board.boardNumber = 7;
    path = session.BoardPath(7);
  }
  fs::path path;
};

TEST_F(BoardStore, SavesANewBoardWithoutAQuestion) {
  ClearAll(session.board);
  EXPECT_TRUE(session.board.handChanged);
  EXPECT_TRUE(SaveHand(session));
  EXPECT_FALSE(session.board.handChanged);
  EXPECT_EQ(ReadFile(path), WriteBoardText(session.board));
  EXPECT_EQ(session.library.boardCount, 1);
}

TEST_F(BoardStore, AsksBeforeAChangedBoardReplacesAFile) {
  WriteFile(path, "old");
  session.board.handChanged = true;
  host.ExpectAsk(kQuestion, kTitle, Answer::No);
  EXPECT_FALSE(SaveHand(session));
  EXPECT_EQ(ReadFile(path), "old");
  EXPECT_TRUE(session.board.handChanged);

  host.ExpectAsk(kQuestion, kTitle, Answer::Yes);
  EXPECT_TRUE(SaveHand(session));
  EXPECT_NE(ReadFile(path), "old");

  WriteFile(path, "old");
  EXPECT_TRUE(SaveHand(session)) << "nothing is asked about a board without changes";
  EXPECT_NE(ReadFile(path), "old");
}

TEST_F(BoardStore, LeavesAReadOnlyFileAlone) {
  WriteFile(path, "old");
  fs::permissions(path, fs::perms::owner_read);
  session.board.handChanged = true;
  host.ExpectAsk(kQuestion, kTitle, Answer::Yes);
  host.ExpectTell("The file\n" + PathText(path) + "\nis read only so the hand cannot be saved");
  EXPECT_FALSE(SaveHand(session));
  EXPECT_EQ(ReadFile(path), "old");
  EXPECT_TRUE(session.board.handChanged);
}

TEST_F(BoardStore, NothingStoresABoardInAReadOnlyFile) {
  WriteFile(path, test::OneSuitEachText());
  fs::permissions(path, fs::perms::owner_read);
  const std::string text =
      "The file\n" + PathText(path) + "\nis read only so the hand cannot be saved";
  host.ExpectTell(text);
  EXPECT_FALSE(SaveHand(session)) << "nor without changes";
  try {
    StoreBoard(session);
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Number(), FaultNumber::PathFileAccess);
    EXPECT_EQ(fault.Description(), text);
  }
  test::FakeSolver solver;
  session.getSolver = [&]() -> Solver& { return solver; };
  EXPECT_TRUE(LoadHand(session));
  EXPECT_TRUE(session.board.makeableValid) << "shown, but not written";
  EXPECT_EQ(ReadFile(path), test::OneSuitEachText());
}

TEST_F(BoardStore, AMarkedFileThatIsReplacedKeepsItsMark) {
  WriteFile(path, "old");
  fs::permissions(path, fs::perms::owner_read);
  ReplaceWholeFile(path, "new");
  EXPECT_EQ(ReadFile(path), "new");
  EXPECT_TRUE(IsReadOnly(path));
  EXPECT_EQ(std::distance(fs::directory_iterator(session.LibraryPath()), {}), 1);
}

TEST_F(BoardStore, AFailedSaveIsReportedAndLosesNothing) {
  fs::create_directories(path / "in the way");  // a folder where the file should be
  session.board.handChanged = true;
  host.ExpectAskWith("Do you wish to try to continue?", Answer::Cancel);
  EXPECT_FALSE(SaveHand(session));
  EXPECT_TRUE(session.board.handChanged);
  EXPECT_FALSE(host.ended);
  EXPECT_EQ(std::distance(fs::directory_iterator(session.LibraryPath()), {}), 1)
      << "nothing is left beside it";

  fs::remove_all(session.LibraryPath());
  host.ExpectAskWith("Error no. 53", Answer::No);
  EXPECT_FALSE(SaveHand(session));
  EXPECT_TRUE(host.ended);
  EXPECT_FALSE(fs::exists(session.LibraryPath())) << "nothing half-made is left";
}

TEST_F(BoardStore, LoadsAFileOrAnEmptyBoardOfTheNumber) {
  WriteFile(path, test::OneSuitEachText());
  session.board.handChanged = true;
  EXPECT_TRUE(LoadHand(session));
  EXPECT_FALSE(session.board.handChanged);
  EXPECT_EQ(session.board.hands[Seat::West][Suit::Clubs].Count(), 13);

  fs::remove(path);
  session.board.calls.Add(Call::Pass());
  EXPECT_FALSE(LoadHand(session));
  EXPECT_FALSE(HasCards(session.board.hands));
  EXPECT_EQ(session.board.NumCalls(), 0);
  EXPECT_FALSE(session.board.handChanged);
  EXPECT_EQ(session.board.boardNumber, 7);
}

TEST_F(BoardStore, AnUnreadableFileGivesItsMessageAndKeepsWhatWasRead) {
  WriteFile(path, test::OneSuitEachText().substr(0, 60));
  host.ExpectTell("Can't read the file " + PathText(path));
  EXPECT_FALSE(LoadHand(session));
  EXPECT_EQ(session.board.hands[Seat::North][Suit::Spades].Count(), 13);

  WriteFile(path, std::string(kMaxBoardFileBytes + 1, ' '));
  host.ExpectTell("Can't read the file " + PathText(path));
  EXPECT_FALSE(LoadHand(session));
}

TEST_F(BoardStore, TheBasicLoaderTellsCompleteDeals) {
  WriteFile(path, test::OneSuitEachText());
  Board board;
  board.boardNumber = 7;
  bool complete = false;
  EXPECT_TRUE(LoadHandBasic(session, board, complete));
  EXPECT_TRUE(complete);
  std::string text = test::OneSuitEachText();
  text.replace(text.find(" A"), 2, "");
  text.replace(text.rfind(" 0"), 2, "no number");  // not read for an incomplete deal
  WriteFile(path, text);
  EXPECT_TRUE(LoadHandBasic(session, board, complete));
  EXPECT_FALSE(complete);
}

}  // namespace
}  // namespace tricklet
