// Importing whole libraries.
#include <tuple>

#include <gtest/gtest.h>

#include "tests/library/transfer_fixture.h"
#include "tests/support/words.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

class LibraryImport : public LibraryTransfer {};

TEST_F(LibraryImport, ImportsALibraryAndMakesItCurrent) {
  const std::string name = "Caf\u00e9 2024.05 & co";
  const fs::path place = PathFromText(name);
  WriteFile(Other() / place / "002.txt", OneSuitEachText());
  WriteFile(Other() / place / "LIN.txt", "results");
  host.Choose(Other() / place);
  EXPECT_TRUE(ImportLibrary(session));
  EXPECT_EQ(host.folderTitle, "Choose the library to import");
  EXPECT_EQ(Shown(), name + " 1 of 2, 1 stored");
  EXPECT_EQ(store.Read("macro", "library"), name);
  EXPECT_EQ(Joined(session.libraryNames), name + ", Club, Teaching");
  EXPECT_EQ(ReadFile(Root() / place / "LIN.txt"), "results");
  EXPECT_TRUE(fs::exists(Other() / place / "002.txt"));
}

TEST_F(LibraryImport, WhatCountsAsABoardIsListed) {
  for (const char* library : {"Old", "Older"}) {
    for (const char* name : {"001.TXT", "002.Txt", "002.txt", "LIN.TXT", "more/003.TXT"}) {
      WriteFile(Other() / "from" / library / name, OneSuitEachText() + name);
    }
  }
  EXPECT_TRUE(ImportLibraryFrom(session, Other() / "from" / "Old"));
  host.ExpectAskWith("1 of the libraries in", Answer::OK);
  host.ExpectTell("1 library has been copied");
  EXPECT_TRUE(ImportLibrariesFrom(session, Other() / "from"));
  for (const char* library : {"Old", "Older"}) {
    const fs::path copy = Root() / library;
    EXPECT_TRUE(ReadFile(copy / "001.txt").ends_with("001.TXT"));
    for (const auto& entry : fs::directory_iterator(copy)) {
      EXPECT_NE(entry.path().filename(), "001.TXT");
    }
    EXPECT_TRUE(ReadFile(copy / "002.txt").ends_with("002.txt"));
    for (const char* name : {"002.Txt", "LIN.TXT", "more/003.TXT"}) {
      EXPECT_TRUE(fs::exists(copy / name)) << name;
    }
  }
  EXPECT_EQ(session.library.boardCount, 2);
}

TEST_F(LibraryImport, RefusesToImportWhatIsNoNewLibrary) {
  for (const char* file : {"CLUB/001.txt", "Texts/notes.txt", "Texts/01.txt", "Texts/1234.txt",
                           "Texts/001.txt/a folder", ".git/001.txt"}) {
    WriteFile(Other() / file, "x");
  }
  const std::string taken = "\nPlease delete it before importing a library of the same name";
  const std::pair<fs::path, std::string> cases[] = {
      {Other() / "CLUB", "You already have a library - CLUB" + taken},
      {Other() / "Texts", "There are no boards in the library Texts"},
      {Other() / ".git", "A library cannot be named .git"},
      {Other() / "gone", "There is no folder " + PathText(Other() / "gone")},
      {Root().root_path(), "Please choose a sub-folder, not " + PathText(Root().root_path())},
  };
  session.board.handChanged = true;  // not asked about: the board is not left
  for (const auto& [chosen, message] : cases) {
    host.ExpectTell(message);
    EXPECT_FALSE(ImportLibraryFrom(session, chosen));
  }
  WriteFile(Other() / "Good" / u8"\u00e9b1.TXT", "three characters");
  ExpectUnsavedQuestion(Answer::Cancel);
  EXPECT_FALSE(ImportLibraryFrom(session, Other() / "Good"));
  EXPECT_EQ(Joined(FoldersOf(Root())), "Club, Teaching");
  EXPECT_EQ(session.LibraryName(), "Club");
  ExpectUnsavedQuestion(Answer::No);
  EXPECT_TRUE(ImportLibraryFrom(session, Other() / "Good"));
}

TEST_F(LibraryImport, ImportsAllNewLibrariesAndSaysSo) {
  const fs::path from = Other() / "from";
  const std::string dir = PathText(from);
  // The files of the folder; the question, or what is told when there is nothing to ask; what is
  // told at the end.
  const std::tuple<const char*, std::string, const char*> cases[] = {
      {"", "There are no libraries in the folder\n" + dir, ""},
      {"Club/001.txt none/x", "There are no other libraries in the folder\n" + dir, ""},
      {"A/001.txt", "1 library will be copied from\n" + dir, "1 library has been copied"},
      {"Club/001.txt none/x B/001.txt",
       "1 of the libraries in\n" + dir +
           "\nhas the same name as one of your existing libraries\n"
           "and so will not be copied\n\n1 other library will be copied from\n" +
           dir,
       "1 library contains no boards\nso has not been copied\n\n1 library has been copied"},
      {"Club/001.txt teaching/001.txt none/x no/x C/001.txt D/001.txt",
       "2 of the libraries in\n" + dir +
           "\nhave the same name as your existing libraries\n"
           "and so will not be copied\n\n2 other libraries will be copied from\n" +
           dir,
       "2 libraries contain no boards\nso have not been copied\n\n2 libraries have been copied"},
  };
  session.board.handChanged = true;  // the board is not left, and keeps its changes
  for (const auto& [files, text, report] : cases) {
    fs::create_directories(from);
    for (const std::string& file : Words(files)) WriteFile(from / file, "x");
    const bool some = *report != '\0';
    if (some) {
      host.ExpectAsk(text, "Tricklet", Answer::Cancel);
      EXPECT_FALSE(ImportLibrariesFrom(session, from));
      host.ExpectAsk(text, "Tricklet", Answer::OK);
    }
    host.ExpectTell(some ? report : text);
    EXPECT_EQ(ImportLibrariesFrom(session, from), some);
    fs::remove_all(from);
  }
  EXPECT_EQ(Joined(session.libraryNames), "A, B, C, Club, D, Teaching");
  EXPECT_EQ(session.LibraryName(), "Club");
  EXPECT_TRUE(session.board.handChanged);
  EXPECT_EQ(ReadFile(Root() / "Teaching" / "007.txt"), "seven");
}

}  // namespace
}  // namespace tricklet::test
