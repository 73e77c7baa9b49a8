#include <gtest/gtest.h>

#include "library/board_clipboard.h"
#include "library/board_store.h"
#include "library/library_choice.h"
#include "library/library_names.h"
#include "library/library_scan.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;
using test::LibraryTest;
using test::ReadFile;
using test::WriteFile;

class LibraryStore : public LibraryTest {
 protected:
  void ExpectUnsavedQuestion(Answer answer) {
    host.ExpectAsk("Do you want to save changes to board " +
                       std::to_string(session.board.boardNumber) + " in library Club?",
                   "Save changes?", answer);
  }
};

TEST_F(LibraryStore, CountsOnlyBoardFiles) {
  EXPECT_EQ(session.library.maxBoard, 24) << "what an empty library offers";
  EXPECT_EQ(session.library.firstBoard, 1000);
  EXPECT_EQ(session.library.lastBoard, 0);
  for (const int number : {3, 30}) PutBoard(number);
  for (const char* name : {"1000.txt", "LIN.txt", "12.txt", "031.txt.99.new", "000.txt"}) {
    WriteFile(session.LibraryPath() / name, "x");
  }
  fs::create_directories(session.LibraryPath() / "040.txt");
  FindFiles(session);
  EXPECT_EQ(session.library.boardCount, 2);
  EXPECT_EQ(session.library.firstBoard, 3);
  EXPECT_EQ(session.library.lastBoard, 30);
  EXPECT_EQ(session.library.maxBoard, 30);
  EXPECT_EQ(LibraryCaption(session), "Library - Club");
  EXPECT_EQ(LibraryCountText(session), "2 boards in library");
}

TEST_F(LibraryStore, ListsFoldersAndFallsBackToTheFirst) {
  for (const char* name : {"beta", "Alpha", ".hidden", "\u00c9t\u00e9 2"}) {
    fs::create_directories(folder.Path() / PathFromText(name));
  }
  WriteFile(folder.Path() / "a file", "x");
  session.settings.library = "gone";
  GetLibraryNames(session);
  EXPECT_EQ(session.libraryNames,
            (std::vector<std::string>{"Alpha", "beta", "Club", "\u00c9t\u00e9 2"}));
  EXPECT_EQ(session.libIndex, 0);
  EXPECT_EQ(session.LibraryName(), "Alpha");
  EXPECT_EQ(store.Read("macro", "library"), "Alpha");

  for (const std::string& name : session.libraryNames)
    fs::remove(folder.Path() / PathFromText(name));
  GetLibraryNames(session);
  EXPECT_TRUE(fs::is_directory(folder.Path() / "Default"));
  EXPECT_EQ(session.LibraryName(), "Default");
}

TEST_F(LibraryStore, SteppingGoesRoundTheEnds) {
  PutBoard(1);
  session.library.maxBoard = 24;
  session.board.boardNumber = 24;
  EXPECT_TRUE(StepBoard(session));
  EXPECT_EQ(session.board.boardNumber, 1);
  EXPECT_TRUE(HasCards(session.board.hands));
  EXPECT_TRUE(StepBoard(session, true));
  EXPECT_EQ(session.board.boardNumber, 24);
  EXPECT_FALSE(HasCards(session.board.hands));
  EXPECT_FALSE(SelectBoard(session, 25));
  EXPECT_FALSE(SelectBoard(session, 0));
}

TEST_F(LibraryStore, AsksAboutUnsavedChangesBeforeTheBoardIsLeft) {
  PutBoard(1);
  session.board.handChanged = true;
  ExpectUnsavedQuestion(Answer::Cancel);
  EXPECT_FALSE(StepBoard(session));
  EXPECT_EQ(session.board.boardNumber, 1);
  EXPECT_TRUE(session.board.handChanged);

  ExpectUnsavedQuestion(Answer::No);
  EXPECT_TRUE(StepBoard(session));
  EXPECT_EQ(ReadFile(session.BoardPath(1)), test::OneSuitEachText());

  session.board.handChanged = true;  // board 2, which has no file yet
  ExpectUnsavedQuestion(Answer::Yes);
  EXPECT_TRUE(StepBoard(session));
  EXPECT_TRUE(fs::exists(session.BoardPath(2)));
  EXPECT_EQ(session.board.boardNumber, 3);
}

TEST_F(LibraryStore, StaysOnABoardThatCouldNotBeSaved) {
  fs::remove_all(session.LibraryPath());
  session.board.handChanged = true;
  ExpectUnsavedQuestion(Answer::Yes);
  host.ExpectAskWith("Do you wish to try to continue?", Answer::Yes);
  EXPECT_FALSE(StepBoard(session));
  EXPECT_TRUE(session.board.handChanged);
}

TEST_F(LibraryStore, SelectingALibraryStoresItAndShowsItsFirstBoard) {
  fs::create_directories(folder.Path() / "Other");
  WriteFile(folder.Path() / "Other" / "002.txt", test::OneSuitEachText());
  GetLibraryNames(session);
  EXPECT_EQ(session.LibraryName(), "Club");
  session.board.boardNumber = 5;
  EXPECT_TRUE(SelectLibrary(session, " Other "));
  EXPECT_EQ(session.board.boardNumber, 1);
  EXPECT_EQ(session.library.maxBoard, 2);
  EXPECT_EQ(store.Read("macro", "library"), "Other");
  EXPECT_FALSE(SelectLibrary(session, "Nowhere"));
  EXPECT_EQ(session.LibraryName(), "Other");
}

TEST_F(LibraryStore, TrimmingAsksAndRecycles) {
  for (const int number : {2, 21, 24}) PutBoard(number);
  FindFiles(session);
  session.board.boardNumber = 24;
  const std::string tail = "\n\nClick yes to send them to the recycle bin";
  host.ExpectAsk("Please confirm that you wish to remove hand 24" + tail, "Tricklet", Answer::No);
  EXPECT_FALSE(SetMaxBoard(session, 23));
  EXPECT_EQ(session.library.maxBoard, 24);

  host.ExpectAsk("Please confirm that you wish to remove hands 21 to 24" + tail, "Tricklet",
                 Answer::Yes);
  EXPECT_TRUE(SetMaxBoard(session, 20));
  EXPECT_EQ(host.recycled, (std::vector<std::string>{"021.txt", "024.txt"}));
  EXPECT_EQ(session.library.maxBoard, 20);
  EXPECT_EQ(session.board.boardNumber, 20);
  EXPECT_EQ(session.library.boardCount, 1);

  EXPECT_TRUE(SetMaxBoard(session, 999));
  EXPECT_EQ(session.library.maxBoard, 999);
  EXPECT_FALSE(SetMaxBoard(session, 1000));
  EXPECT_FALSE(SetMaxBoard(session, 0));
  EXPECT_EQ(host.beeps, 2);
}

TEST(LibraryName, RefusesCharacters) {
  std::string typed;
  for (const char c : std::string(" My.L/i:b*?\"<>|\\ 2")) {
    if (AllowedInLibraryName(static_cast<unsigned char>(c), typed.empty())) typed += c;
  }
  EXPECT_EQ(typed, "MyLib 2");
  EXPECT_TRUE(AllowedInLibraryName(U'\u00e9', true));
  EXPECT_FALSE(AllowedInLibraryName(U'\n', false));
}

TEST_F(LibraryStore, CreatesAndRenames) {
  PutBoard(1);
  EXPECT_TRUE(IsNewLibraryName(session, "Tuesday"));
  EXPECT_TRUE(CreateLibrary(session, "Tuesday"));
  EXPECT_EQ(session.LibraryName(), "Tuesday");
  EXPECT_TRUE(fs::is_directory(folder.Path() / "Tuesday"));
  EXPECT_FALSE(IsNewLibraryName(session, "club")) << "letter case does not make a new name";
  EXPECT_FALSE(IsNewLibraryName(session, "  "));

  host.ExpectTell("club already exists\nPlease choose a different name");
  EXPECT_FALSE(CreateLibrary(session, "club"));
  host.ExpectTell("A library cannot be named ../up");
  EXPECT_FALSE(CreateLibrary(session, "../up"));
  EXPECT_EQ(host.beeps, 1);
  host.ExpectTell("A library cannot be named " + std::string(60, 'n') + "...");
  EXPECT_FALSE(CreateLibrary(session, std::string(256, 'n')));
  EXPECT_EQ(session.LibraryName(), "Tuesday");

  ASSERT_TRUE(SelectLibrary(session, "Club"));
  CopyHand(session);
  host.ExpectTell("Tuesday already exists\nPlease choose a different name");
  EXPECT_FALSE(RenameLibrary(session, "Tuesday"));
  EXPECT_TRUE(RenameLibrary(session, "Caf\u00e9 pairs"));
  EXPECT_EQ(session.LibraryName(), "Caf\u00e9 pairs");
  EXPECT_EQ(session.copyLibrary, "Caf\u00e9 pairs") << "what was copied is still there";
  EXPECT_TRUE(fs::exists(session.BoardPath(1)));
  EXPECT_FALSE(fs::exists(folder.Path() / "Club"));
  EXPECT_EQ(session.libraryNames.at(static_cast<std::size_t>(session.libIndex)), "Caf\u00e9 pairs");
  EXPECT_FALSE(IsNewLibraryName(session, "CAFE\u0301 pairs")) << "nor does another composition";
}

TEST_F(LibraryStore, PastesAFileByteForByte) {
  const std::string text = test::OneSuitEachText() + "left over\r\n";
  WriteFile(session.BoardPath(5), text);
  session.board.boardNumber = 5;
  EXPECT_FALSE(PasteHand(session)) << "nothing was copied yet";
  CopyHand(session);
  session.board.boardNumber = 9;
  LoadHand(session);
  EXPECT_TRUE(PasteHand(session));
  EXPECT_EQ(ReadFile(session.BoardPath(9)), text);
  EXPECT_TRUE(HasCards(session.board.hands));

  fs::permissions(session.BoardPath(9), fs::perms::owner_read);
  host.ExpectTellWith("is read only so the hand cannot be saved");
  EXPECT_FALSE(PasteHand(session));
  fs::permissions(session.BoardPath(9), fs::perms::owner_all);
  host.ExpectAsk("Do you wish to overwrite board 9\nwith board 5 from library: Club",
                 "Copy from Library Club: board 5\nto Library Club: board 9", Answer::No);
  EXPECT_FALSE(PasteHand(session));
  fs::remove(session.BoardPath(5));
  host.ExpectTell("Library Club: hand 5 no longer exists");
  EXPECT_FALSE(PasteHand(session));
  EXPECT_EQ(ReadFile(session.BoardPath(9)), text);
}

}  // namespace
}  // namespace tricklet
