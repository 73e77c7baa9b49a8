// Exporting, moving, copying and deleting whole libraries.
#include "library/library_transfer.h"

#include <gtest/gtest.h>

#include "core/fault.h"
#include "library/board_store.h"
#include "tests/library/transfer_fixture.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

const std::string kOverwrite = "\nDo you wish to overwrite any existing boards?";

TEST_F(LibraryTransfer, ExportsTheCurrentLibraryAndAsksBeforeItOverwrites) {
  const std::string question = "Please choose the location\nto copy your library (Club) to";
  host.ExpectAsk(question, "Tricklet", Answer::Cancel);
  EXPECT_FALSE(ExportLibrary(session));
  host.ExpectAsk(question, "Tricklet", Answer::OK);
  host.Choose(std::nullopt);
  EXPECT_FALSE(ExportLibrary(session));
  ExpectNothingChanged();
  EXPECT_EQ(host.folderTitle, "Choose the library location");
  EXPECT_EQ(host.folderStart, folder.Path()) << "the parent folder of the root";

  host.ExpectAsk(question, "Tricklet", Answer::OK);
  host.Choose(Other());
  EXPECT_TRUE(ExportLibrary(session));
  EXPECT_EQ(ReadFile(Other() / "Club" / "003.txt"), OneSuitEachText());

  WriteFile(Other() / "Club" / "001.txt", "theirs");
  for (const Answer answer : {Answer::No, Answer::Yes}) {
    host.ExpectAsk("That folder already exists" + kOverwrite, "Tricklet", answer);
    EXPECT_EQ(ExportLibraryTo(session, Other() / ""), answer == Answer::Yes);
    EXPECT_EQ(ReadFile(Other() / "Club" / "001.txt"),
              answer == Answer::Yes ? OneSuitEachText() : "theirs");
  }
}

TEST_F(LibraryTransfer, ExportsWhatIsStoredOnceChangesAreSettled) {
  session.board.hands = {};
  ExpectUnsavedQuestion(Answer::No);
  EXPECT_TRUE(ExportLibraryTo(session, Other()));
  EXPECT_TRUE(HasCards(session.board.hands)) << "the board is shown as it is stored";
  EXPECT_EQ(ReadFile(Other() / "Club" / "001.txt"), OneSuitEachText());
}

TEST_F(LibraryTransfer, NothingIsCopiedIntoItself) {
  for (const auto& command : {ExportLibraryTo, ExportLibrariesTo, MoveLibrariesTo}) {
    host.ExpectTell("That is the same folder as the existing folder");
    EXPECT_FALSE(command(session, Root()));
  }
  const std::string itself = "A folder cannot be copied into itself:\n";
  const fs::path inside = Root() / "Club" / "new";
  host.ExpectTell(itself + PathText(Root() / "Club") + "\nto " + PathText(inside / "Club"));
  EXPECT_FALSE(ExportLibraryTo(session, inside));
  for (const auto& command : {ExportLibrariesTo, MoveLibrariesTo}) {
    host.ExpectAskWith("Do you want to copy all your libraries", Answer::Yes);
    host.ExpectTell(itself + PathText(Root()) + "\nto " + PathText(Root() / "Backup"));
    EXPECT_FALSE(command(session, Root() / "Backup"));
  }

  // A library of the root's own name would end up over the root.
  WriteFile(Root() / "hands" / "001.txt", "x");
  host.ExpectAskWith("Do you want to copy all your libraries", Answer::Yes);
  host.ExpectAskWith("1 library is already in that folder", Answer::Yes);
  host.ExpectTell(itself + PathText(Root() / "hands") + "\nto " + PathText(Root()));
  EXPECT_FALSE(ExportLibrariesTo(session, folder.Path()));
  EXPECT_TRUE(fs::is_empty(Other()));
  EXPECT_FALSE(fs::exists(folder.Path() / "Club"));
}

TEST_F(LibraryTransfer, AFolderThatCannotBeTheRootIsChosenAgain) {
  const std::pair<const char*, bool (*)(Session&)> commands[] = {
      {"Please choose the folder (new or existing)\nto copy your libraries to", ExportLibraries},
      {"Your library of hands is currently stored in the folder:\n", MoveLibraries}};
  for (const auto& [question, command] : commands) {
    host.ExpectAskWith(question, Answer::OK);
    host.Choose(Root().root_path());
    host.ExpectTell("Please choose a sub-folder, not " + PathText(Root().root_path()));
    host.Choose(Root() / "");
    host.ExpectTell("That is the same folder as the existing folder");
    host.Choose(std::nullopt);
    EXPECT_FALSE(command(session));
    EXPECT_EQ(host.folderTitle, "Choose the macro library folder");
    ExpectNothingChanged();
    host.ExpectAskWith(question, Answer::Cancel);
    EXPECT_FALSE(command(session));
  }
}

TEST_F(LibraryTransfer, ExportsAllLibrariesOnlyAfterYes) {
  ExpectCopyQuestion(Answer::No);
  EXPECT_FALSE(ExportLibrariesTo(session, Other()));
  EXPECT_TRUE(fs::is_empty(Other()));
  ExpectCopyQuestion(Answer::Yes);
  EXPECT_TRUE(ExportLibrariesTo(session, Other()));
  EXPECT_EQ(FoldersOf(Other()), FoldersOf(Root()));
  EXPECT_FALSE(fs::exists(Other() / ".hidden")) << "no library";

  WriteFile(Other() / "Teaching" / "007.txt", "theirs");
  ExpectCopyQuestion(Answer::Yes);
  host.ExpectAsk("2 libraries are already in that folder" + kOverwrite, "Tricklet", Answer::No);
  EXPECT_FALSE(ExportLibrariesTo(session, Other()));
  EXPECT_EQ(ReadFile(Other() / "Teaching" / "007.txt"), "theirs");
}

TEST_F(LibraryTransfer, ACopyThatFailsOrIsCancelledLeavesNothing) {
  host.cancelAtStep = 4;
  ExpectCopyQuestion(Answer::Yes);
  host.ExpectTell("Copying cancelled");
  EXPECT_FALSE(ExportLibrariesTo(session, Other()));
  ExpectNothingChanged();

  host.cancelAtStep = 0;
  host.onStep = [this] { fs::remove_all(Root() / "Teaching"); };  // another program's doing
  ExpectCopyQuestion(Answer::Yes);
  host.ExpectAskWith("Error no. 76", Answer::Yes);
  EXPECT_FALSE(MoveLibrariesTo(session, Other()));
  EXPECT_EQ(session.settings.filelocation, RootText());
  EXPECT_TRUE(fs::is_empty(Other()));
}

TEST_F(LibraryTransfer, MovingIsACopyAndASwitchOfTheRoot) {
  session.copyLibrary = "Club";
  ExpectCopyQuestion(Answer::Cancel);
  EXPECT_FALSE(MoveLibrariesTo(session, Other())) << "no answer is not No";
  ExpectNothingChanged();
  host.ExpectAsk("Your library of hands is currently stored in the folder:\n" + RootText() +
                     "\nPlease choose a different folder (new or existing)",
                 "Tricklet", Answer::OK);
  host.Choose(Other());
  ExpectCopyQuestion(Answer::Yes);
  EXPECT_TRUE(MoveLibraries(session));
  EXPECT_EQ(session.settings.filelocation, FolderText(Other()));
  EXPECT_EQ(store.Read("macro", "filelocation"), FolderText(Other()));
  EXPECT_EQ(Joined(session.libraryNames), "Club, Teaching");
  EXPECT_EQ(Shown(), "Club 1 of 3, 2 stored");
  EXPECT_EQ(session.copyLibrary, "");
  EXPECT_EQ(FoldersOf(Root()).size(), 2U) << "the old root stays";
}

TEST_F(LibraryTransfer, ACopyThatLeavesALinkOutIsNotTheWhole) {
  const std::string leftOut = "Links and special files are not copied: 1 left out";
  fs::create_symlink(Root() / "Teaching" / "007.txt", Root() / "Teaching" / "008.txt");
  ExpectCopyQuestion(Answer::Yes);
  host.ExpectTell(leftOut);
  host.ExpectTell("Your library of hands stays in\n" + RootText());
  EXPECT_FALSE(MoveLibrariesTo(session, Other()));
  EXPECT_EQ(session.settings.filelocation, RootText());

  ASSERT_TRUE(SelectLibrary(session, "Teaching"));
  host.ExpectTell(leftOut);
  EXPECT_FALSE(CopyLibrary(session, "Copy"));
  EXPECT_EQ(Joined(session.libraryNames), "Club, Copy, Teaching");
}

TEST_F(LibraryTransfer, ChangesAreSettledOnlyOnceTheCopyIsCertain) {
  session.board.handChanged = true;
  for (const auto& command : {ExportLibrariesTo, MoveLibrariesTo}) {
    fs::create_directories(Other() / "Teaching");
    ExpectCopyQuestion(Answer::Yes);
    host.ExpectAskWith("1 library is already in that folder", Answer::No);
    EXPECT_FALSE(command(session, Other()));
    EXPECT_TRUE(session.board.handChanged);
    fs::remove(Other() / "Teaching");
    ExpectCopyQuestion(Answer::Yes);
    ExpectUnsavedQuestion(Answer::Cancel);
    EXPECT_FALSE(command(session, Other()));
    ExpectNothingChanged();
  }
}

TEST_F(LibraryTransfer, ARootWithoutLibrariesCanBeLeft) {
  for (const char* name : {"Club", "Teaching"}) fs::remove_all(Root() / name);
  ExpectCopyQuestion(Answer::Yes);
  host.ExpectTell("There are no libraries in " + RootText());
  EXPECT_FALSE(ExportLibrariesTo(session, Other()));
  ExpectCopyQuestion(Answer::Yes);
  EXPECT_TRUE(MoveLibrariesTo(session, Other()));
  EXPECT_EQ(session.settings.filelocation, FolderText(Other()));
  EXPECT_EQ(Joined(session.libraryNames), "Default");
}

TEST_F(LibraryTransfer, ARootWithoutTheCurrentLibraryGetsADefault) {
  WriteFile(Other() / "Aaa" / "001.txt", "x");
  ExpectCopyQuestion(Answer::No);
  EXPECT_TRUE(MoveLibrariesTo(session, Other()));
  EXPECT_EQ(store.Read("macro", "library"), "Default");
  EXPECT_EQ(Joined(session.libraryNames), "Aaa, Default");

  // A folder that cannot be made leaves everything as it is.
  WriteFile(folder.Path() / "file", "x");
  host.ExpectAskWith("Do you want to copy all your libraries", Answer::No);
  host.ExpectAskWith("Do you wish to try to continue?", Answer::Yes);
  EXPECT_FALSE(MoveLibrariesTo(session, folder.Path() / "file" / "root"));
  EXPECT_EQ(store.Read("macro", "filelocation"), FolderText(Other()));
}

TEST_F(LibraryTransfer, CopiesTheCurrentLibraryUnderANewName) {
  host.ExpectTell("teaching already exists\nPlease choose a different name");
  EXPECT_FALSE(CopyLibrary(session, "teaching "));
  ExpectNothingChanged();
  session.board.boardNumber = 3;
  EXPECT_TRUE(CopyLibrary(session, "Club \u00e9t\u00e9"));
  EXPECT_EQ(ReadFile(Root() / u8"Club \u00e9t\u00e9" / "003.txt"), OneSuitEachText());
  EXPECT_EQ(Shown(), "Club 3 of 3, 2 stored") << "the board on the screen stays";
  EXPECT_EQ(session.libraryNames.size(), 3U);
}

TEST_F(LibraryTransfer, DeletesOnlyToTheRecycleBinAndNeverTheCurrentLibrary) {
  fs::create_directory_symlink(Root() / "Club", Root() / "Alias");
  for (const char* name : {"Club", "Alias", "./Club"}) {
    host.ExpectTell("Cannot delete the library currently in use");
    EXPECT_FALSE(DeleteLibrary(session, name));
  }
  for (const char* name : {"", "gone", "../other \u00e9", ".hidden"}) {
    host.ExpectTell("Unable to delete the library " + std::string(name));
    EXPECT_FALSE(DeleteLibrary(session, name));
  }
  host.hasRecycleBin = false;
  host.ExpectTell("Unable to delete the library Teaching");
  EXPECT_FALSE(DeleteLibrary(session, "Teaching"));
  EXPECT_TRUE(fs::exists(Root() / "Teaching" / "007.txt"));

  host.hasRecycleBin = true;
  session.board.handChanged = true;
  EXPECT_TRUE(DeleteLibrary(session, "Teaching"));
  EXPECT_EQ(Joined(host.recycled), "Teaching");
  EXPECT_EQ(Joined(session.libraryNames), "Alias, Club");
  EXPECT_EQ(session.libIndex, 1);
  EXPECT_TRUE(session.board.handChanged) << "the board on the screen is not touched";
}

}  // namespace
}  // namespace tricklet::test
