#include <gtest/gtest.h>

#include "library/board_clipboard.h"
#include "library/board_store.h"
#include "library/library_choice.h"
#include "library/library_names.h"
#include "library/library_scan.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

class LibraryStore : public LibraryTest {};

TEST_F(LibraryStore, CountsOnlyBoardFiles) {
  EXPECT_EQ(Shown(), "Club 1 of 24, 0 stored");
  for (const int number : {3, 30}) PutBoard(number);
  for (const char* name : {"1000.txt", "LIN.txt", "12.txt", "031.txt.99.new", "000.txt"}) {
    WriteFile(session.LibraryPath() / name, "x");
  }
  fs::create_directories(session.LibraryPath() / "040.txt");
  FindFiles(session);
  EXPECT_EQ(Shown(), "Club 1 of 30, 2 stored");
  EXPECT_EQ(session.library.firstBoard, 3);
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
  EXPECT_EQ(Joined(session.libraryNames), "Alpha, beta, Club, \u00c9t\u00e9 2");
  EXPECT_EQ(session.libIndex, 0);
  EXPECT_EQ(store.Read("macro", "library"), "Alpha");

  for (const fs::path& each : fs::directory_iterator(folder.Path())) fs::remove(each);
  GetLibraryNames(session);
  EXPECT_TRUE(fs::is_directory(folder.Path() / "Default"));
  EXPECT_EQ(session.LibraryName(), "Default");
}

TEST_F(LibraryStore, SteppingGoesRoundTheEnds) {
  PutBoard(1);
  session.board.boardNumber = 24;
  for (const auto& [number, backward] : {std::pair(1, false), {24, true}}) {
    EXPECT_TRUE(StepBoard(session, backward));
    EXPECT_EQ(session.board.boardNumber, number);
    EXPECT_EQ(HasCards(session.board.hands), number == 1);
  }
  EXPECT_FALSE(SelectBoard(session, 25));
  EXPECT_FALSE(SelectBoard(session, 0));
}

TEST_F(LibraryStore, AsksAboutUnsavedChangesBeforeTheBoardIsLeft) {
  ExpectUnsavedQuestion(Answer::Cancel);
  EXPECT_FALSE(StepBoard(session));
  EXPECT_EQ(Shown(), "Club 1* of 24, 0 stored");
  ExpectUnsavedQuestion(Answer::No);
  EXPECT_TRUE(StepBoard(session));
  EXPECT_EQ(Shown(), "Club 2 of 24, 0 stored");
  ExpectUnsavedQuestion(Answer::Yes);
  EXPECT_TRUE(StepBoard(session));
  EXPECT_TRUE(fs::exists(session.BoardPath(2)));
  EXPECT_EQ(Shown(), "Club 3 of 24, 1 stored");

  fs::remove_all(session.LibraryPath());
  ExpectUnsavedQuestion(Answer::Yes);
  host.ExpectAskWith("Do you wish to try to continue?", Answer::Yes);
  EXPECT_FALSE(StepBoard(session)) << "the board could not be saved";
  EXPECT_EQ(Shown(), "Club 3* of 24, 1 stored");
}

TEST_F(LibraryStore, TrimmingAsksAndRecycles) {
  for (const int number : {2, 21, 22, 24}) PutBoard(number);
  FindFiles(session);
  session.board.boardNumber = 22;
  session.board.handChanged = true;
  const std::string tail = "\n\nClick yes to send them to the recycle bin";
  host.ExpectAsk("Please confirm that you wish to remove hand 24" + tail, "Tricklet", Answer::No);
  EXPECT_FALSE(SetMaxBoard(session, 23));
  EXPECT_EQ(Shown(), "Club 22* of 24, 4 stored");
  host.ExpectAsk("Please confirm that you wish to remove hands 23 to 24" + tail, "Tricklet",
                 Answer::Yes);
  EXPECT_TRUE(SetMaxBoard(session, 22));
  EXPECT_EQ(Shown(), "Club 22* of 22, 3 stored");
  host.ExpectAskWith("hands 21 to 22", Answer::Yes);
  EXPECT_TRUE(SetMaxBoard(session, 20));
  EXPECT_EQ(Shown(), "Club 20 of 20, 1 stored");
  EXPECT_EQ(Joined(host.recycled), "024.txt, 021.txt, 022.txt");

  for (const int number : {21, 22, 23}) PutBoard(number);
  FindFiles(session);
  host.cancelAtStep = static_cast<int>(host.steps.size()) + 2;
  host.ExpectAskWith("hands 21 to 23", Answer::Yes);
  EXPECT_TRUE(SetMaxBoard(session, 20));
  EXPECT_EQ(Shown(), "Club 20 of 23, 3 stored") << "what was not removed is still there";

  EXPECT_TRUE(SetMaxBoard(session, 999));
  EXPECT_FALSE(SetMaxBoard(session, 1000));
  EXPECT_FALSE(SetMaxBoard(session, 0));
  EXPECT_EQ(Shown(), "Club 20 of 999, 3 stored");
  EXPECT_EQ(host.beeps, 2);
}

TEST(LibraryName, RefusesCharacters) {
  for (const char32_t c : std::u32string_view(U"./:*?\"<>|\\\n")) {
    EXPECT_FALSE(AllowedInLibraryName(c, false)) << static_cast<char>(c);
  }
  EXPECT_TRUE(AllowedInLibraryName(U' ', false) && !AllowedInLibraryName(U' ', true));
  EXPECT_TRUE(AllowedInLibraryName(U'\u00e9', true));
}

TEST_F(LibraryStore, CreatesSelectsAndRenames) {
  PutBoard(2);
  EXPECT_TRUE(CreateLibrary(session, "Tuesday"));
  EXPECT_EQ(Shown(), "Tuesday 1 of 24, 0 stored");
  EXPECT_FALSE(IsNewLibraryName(session, "  "));
  const std::string longest(60, 'n');
  const std::pair<std::string, std::string> kRefused[] = {
      {"club", "club already exists\nPlease choose a different name"},
      {" ", "A library needs a name"},
      {"../up", "A library cannot be named ../up"},
      {"Con", "A library cannot be named Con"},
      {"lpt\u00b9", "A library cannot be named lpt\u00b9"},
      {longest + std::string(196, 'n'), "A library cannot be named " + longest + "..."}};
  for (const auto& [name, message] : kRefused) {
    host.ExpectTell(message);
    EXPECT_FALSE(CreateLibrary(session, name));
  }
  EXPECT_EQ(host.beeps, 5);
  EXPECT_TRUE(HasAllowedCharacters("Conny") && HasAllowedCharacters("COM10"));

  session.board.boardNumber = 5;
  EXPECT_TRUE(SelectLibrary(session, " Club "));
  EXPECT_FALSE(SelectLibrary(session, "Nowhere"));
  EXPECT_EQ(Shown(), "Club 1 of 2, 1 stored");
  EXPECT_EQ(store.Read("macro", "library"), "Club");
  CopyHand(session);
  host.ExpectTell("Tuesday already exists\nPlease choose a different name");
  EXPECT_FALSE(RenameLibrary(session, "Tuesday"));
  EXPECT_TRUE(RenameLibrary(session, "Caf\u00e9 pairs"));
  EXPECT_EQ(Joined(session.libraryNames), "Caf\u00e9 pairs, Tuesday");
  EXPECT_EQ(session.libIndex, 0);
  EXPECT_EQ(session.copyLibrary, "Caf\u00e9 pairs") << "what was copied is still there";
  EXPECT_TRUE(fs::exists(session.BoardPath(2)));
  EXPECT_FALSE(IsNewLibraryName(session, "CAFE\u0301 pairs")) << "another composition";
}

TEST_F(LibraryStore, PastesAFileByteForByte) {
  const std::string text = OneSuitEachText() + "left over\r\n";
  WriteFile(session.BoardPath(5), text);
  session.board.boardNumber = 5;
  EXPECT_FALSE(PasteHand(session)) << "nothing was copied yet";
  CopyHand(session);
  session.board.boardNumber = 9;
  EXPECT_TRUE(PasteHand(session));
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
}  // namespace tricklet::test
