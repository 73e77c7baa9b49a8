// Libraries to copy, and what is asked and told while they are.
#pragma once

#include "library/library_choice.h"
#include "library/library_names.h"
#include "library/library_transfer.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {

/// The libraries Club (current) and Teaching in the root; `Other()` is a folder beside it.
class LibraryTransfer : public LibraryTest {
 protected:
  LibraryTransfer() {
    std::filesystem::remove(session.LibraryPath());
    session.settings.filelocation = FolderText(Root());
    PutBoard(1);
    PutBoard(3);
    WriteFile(Root() / "Teaching" / "007.txt", "seven");
    WriteFile(Root() / ".hidden" / "001.txt", "no library");
    std::filesystem::create_directories(Other());
    GetLibraryNames(session);
  }

  std::filesystem::path Root() const { return folder.Path() / "hands"; }
  std::filesystem::path Other() const { return folder.Path() / u8"other \u00e9"; }
  std::string RootText() const { return FolderText(Root()); }

  void ExpectCopyQuestion(Answer answer) {
    host.ExpectAsk(
        "Do you want to copy all your libraries from\n" + RootText() + "\nto " + PathText(Other()),
        "Tricklet", answer);
  }
  /// The root and the current library are what they were.
  void ExpectNothingChanged() {
    EXPECT_EQ(session.settings.filelocation, RootText());
    EXPECT_EQ(session.LibraryName(), "Club");
    EXPECT_EQ(Joined(FoldersOf(Root())), "Club, Teaching");
    EXPECT_EQ(session.libraryNames, FoldersOf(Root()));
    EXPECT_TRUE(std::filesystem::is_empty(Other()));
  }
};

}  // namespace tricklet::test
