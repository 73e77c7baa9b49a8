#include "library/board_store.h"

#include <gtest/gtest.h>

#include "core/fault.h"
#include "disk/file_io.h"
#include "disk/presence.h"
#include "library/board_clipboard.h"
#include "library/board_file.h"
#include "library/board_on_disk.h"
#include "library/tables.h"
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
  const std::string old = ReadFile(path);
  EXPECT_EQ(old, WriteBoardText(session.board));

  session.board.hands = OneSuitEach();
  session.board.handChanged = true;
  host.ExpectAsk("Overwrite existing board 7?", "Hand already in library", Answer::No);
  EXPECT_FALSE(SaveHand(session));
  EXPECT_EQ(host.asked.safe, Answer::No);
  EXPECT_EQ(ReadFile(path), old);
  EXPECT_TRUE(session.board.handChanged);

  host.ExpectAskWith("Overwrite", Answer::Yes);
  EXPECT_TRUE(SaveHand(session));
  EXPECT_EQ(ReadFile(path), OneSuitEachText());
  EXPECT_TRUE(SaveHand(session)) << "nor about a board without changes";
}

TEST_F(BoardStore, AsksBeforeItReplacesWhatAnotherProgramHasStored) {
  const std::string theirs = OneSuitEachText();
  const std::string others[] = {"", theirs, "no board"};  // "" stands for no file
  const auto put = [this](const std::string& text) {
    fs::remove(path);
    if (!text.empty()) WriteFile(path, text);
  };
  for (const std::string& before : {others[0], others[1]}) {
    for (const std::string& after : others) {
      put(before);
      LoadHand(session);
      ClearAll(session.board);
      session.board.calls.Add(Call::Pass());
      put(after);
      SCOPED_TRACE(before.substr(0, 8) + " -> " + after.substr(0, 8));
      const bool replaces = after != before && !after.empty();
      const std::string question = "Board 7 in the library Club has been " +
                                   std::string(before.empty() ? "added" : "changed") +
                                   " by another program since it was opened.\nDo you want to "
                                   "replace it with the board shown here?";
      if (replaces) {
        host.ExpectAsk(question, "Board changed on disk", Answer::No);
        EXPECT_FALSE(SaveHand(session));
        EXPECT_EQ(ReadFile(path), after);
        EXPECT_TRUE(session.board.handChanged);
        host.ExpectAskWith(question, Answer::Yes);
      } else if (!after.empty()) {
        host.ExpectAskWith("Overwrite existing board 7?", Answer::Yes);
      }
      EXPECT_TRUE(SaveHand(session));
      EXPECT_EQ(ReadFile(path), WriteBoardText(session.board));
    }
  }
}

TEST_F(BoardStore, AsksAgainWhenTheFileChangesWhileThePersonThinks) {
  LoadHand(session);
  ClearAll(session.board);
  WriteFile(path, OneSuitEachText());
  host.onAsk = [this] { WriteFile(path, "newer still"); };
  host.ExpectAskWith("added by another program", Answer::Yes);
  host.ExpectAskWith("added by another program", Answer::No);
  EXPECT_FALSE(SaveHand(session));
  EXPECT_EQ(ReadFile(path), "newer still");

  host.onAsk = nullptr;
  WriteFile(session.BoardPath(8), OneSuitEachText());
  session.copyLibrary = "Club";
  session.copyBoard = 8;
  host.ExpectAskWith("Do you want to replace it with board 8 from library: Club?", Answer::No);
  EXPECT_FALSE(PasteHand(session));
  EXPECT_EQ(ReadFile(path), "newer still");
}

TEST_F(BoardStore, ItsOwnTableIsNoChangeAndDoesNotHideOne) {
  for (const bool changedBefore : {false, true}) {
    WriteFile(path, OneSuitEachText());
    LoadHand(session);
    Board theirs = session.board;
    theirs.calls.Add(Call::Pass());
    if (changedBefore) WriteFile(path, WriteBoardText(theirs));
    EXPECT_TRUE(StoreTable(session, path, theirs.hands, {}));
    EXPECT_EQ(ChangeOnDisk(session), changedBefore ? DiskChange::Changed : DiskChange::None);
  }
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
