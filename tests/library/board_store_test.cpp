#include "library/board_store.h"

#include <gtest/gtest.h>

#include "core/fault.h"
#include "disk/file_io.h"
#include "disk/presence.h"
#include "library/board_file.h"
#include "tests/support/fake_solver.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

class BoardStore : public LibraryTest {
 protected:
  BoardStore() {
    session.board.boardNumber = 7;
    path = session.BoardPath(7);
  }
  auto FilesInLibrary() { return std::distance(fs::directory_iterator(path.parent_path()), {}); }
  fs::path path;
};

TEST_F(BoardStore, AsksBeforeAChangedBoardReplacesAFile) {
  ClearAll(session.board);
  EXPECT_EQ(Shown(), "Club 7* of 24, 0 stored");
  EXPECT_TRUE(SaveHand(session)) << "nothing is asked about a new board";
  EXPECT_EQ(Shown(), "Club 7 of 24, 1 stored");
  EXPECT_EQ(ReadFile(path), WriteBoardText(session.board));

  WriteFile(path, "old");
  session.board.handChanged = true;
  host.ExpectAsk("Overwrite existing board 7?", "Hand already in library", Answer::No);
  EXPECT_FALSE(SaveHand(session));
  EXPECT_EQ(ReadFile(path), "old");
  EXPECT_TRUE(session.board.handChanged);

  host.ExpectAskWith("Overwrite", Answer::Yes);
  EXPECT_TRUE(SaveHand(session));
  EXPECT_NE(ReadFile(path), "old");

  WriteFile(path, "old");
  EXPECT_TRUE(SaveHand(session)) << "nor about a board without changes";
  EXPECT_NE(ReadFile(path), "old");
}

TEST_F(BoardStore, NothingStoresABoardInAReadOnlyFile) {
  WriteFile(path, OneSuitEachText());
  fs::permissions(path, fs::perms::owner_read);
  const std::string text =
      "The file\n" + PathText(path) + "\nis read only so the hand cannot be saved";
  host.ExpectTell(text);
  EXPECT_FALSE(SaveHand(session));
  session.board.handChanged = true;
  host.ExpectAskWith("Overwrite", Answer::Yes);
  host.ExpectTell(text);
  EXPECT_FALSE(SaveHand(session));
  EXPECT_TRUE(session.board.handChanged);
  auto write = LibraryWrite::Begin(session);
  EXPECT_THROW(StoreBoard(session, *write), Fault);
  write.reset();
  FakeSolver solver;
  session.getSolver = [&]() -> Solver& { return solver; };
  EXPECT_TRUE(LoadHand(session));
  EXPECT_TRUE(session.board.makeableValid) << "shown, but not written";
  EXPECT_EQ(ReadFile(path), OneSuitEachText());
}

TEST_F(BoardStore, FilesAreReplacedWholeOrNotAtAll) {
  WriteFile(path, "old");
  fs::permissions(path, fs::perms::owner_read);
  ReplaceWholeFile(path, "new");
  EXPECT_EQ(ReadFile(path), "new");
  EXPECT_TRUE(IsReadOnly(path)) << "a file that is replaced keeps its mark";
  UnflushedFolders unflushed;
  EXPECT_FALSE(CopyWholeFile(path, session.BoardPath(8), unflushed, [] { return false; }));
  EXPECT_EQ(FilesInLibrary(), 1) << "nothing is left beside it";
}

TEST_F(BoardStore, AFailedSaveIsReportedAndLosesNothing) {
  fs::create_directories(path / "in the way");  // a folder where the file should be
  session.board.handChanged = true;
  host.ExpectAskWith("Do you wish to try to continue?", Answer::Cancel);
  EXPECT_FALSE(SaveHand(session));
  EXPECT_TRUE(session.board.handChanged);
  EXPECT_FALSE(host.ended);
  EXPECT_EQ(FilesInLibrary(), 1) << "nothing is left beside it";

  fs::remove_all(session.LibraryPath());
  host.ExpectAskWith("Error no. 53", Answer::No);
  EXPECT_FALSE(SaveHand(session));
  EXPECT_TRUE(host.ended);
  EXPECT_FALSE(fs::exists(session.LibraryPath())) << "nothing half-made is left";
}

TEST_F(BoardStore, LoadsAFileOrAnEmptyBoardOfTheNumber) {
  session.board.calls.Add(Call::Pass());
  session.board.handChanged = true;
  EXPECT_FALSE(LoadHand(session)) << "there is no file";
  EXPECT_EQ(Shown(), "Club 7 of 24, 0 stored");
  EXPECT_EQ(session.board.NumCalls(), 0);

  WriteFile(path, OneSuitEachText().substr(0, 60));
  host.ExpectTell("Can't read the file " + PathText(path));
  EXPECT_FALSE(LoadHand(session));
  EXPECT_EQ(session.board.hands[Seat::North][Suit::Spades].Count(), 13) << "what could be read";

  WriteFile(path, OneSuitEachText() + std::string(kMaxBoardFileBytes, ' '));
  host.ExpectTell("Can't read the file " + PathText(path));
  EXPECT_FALSE(LoadHand(session)) << "too large";
}

TEST_F(BoardStore, TheBasicLoaderTellsCompleteDeals) {
  Board board;
  board.boardNumber = 7;
  bool complete = false;
  std::string text = OneSuitEachText();
  for (const bool whole : {true, false}) {
    WriteFile(path, text);
    EXPECT_TRUE(LoadHandBasic(session, board, complete));
    EXPECT_EQ(complete, whole);
    text.replace(text.find(" A"), 2, "");
    text.replace(text.rfind(" 0"), 2, "no number");  // not read for an incomplete deal
  }
}

}  // namespace
}  // namespace tricklet::test
