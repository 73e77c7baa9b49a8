// Importing whole libraries.
#include <gtest/gtest.h>

#include "tests/library/transfer_fixture.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;
using test::ReadFile;
using test::WriteFile;

class LibraryImport : public test::LibraryTransfer {};

TEST_F(LibraryImport, ImportsALibraryAndMakesItCurrent) {
  const std::string name = "Caf\u00e9 2024.05 & co";
  const fs::path place = PathFromText(name);
  WriteFile(Other() / place / "002.txt", test::OneSuitEachText());
  WriteFile(Other() / place / "LIN.txt", "results");
  host.Choose(Other() / place);
  EXPECT_TRUE(ImportLibrary(session));
  EXPECT_EQ(host.folderTitle, "Choose the library to import");
  EXPECT_EQ(session.LibraryName(), name);
  EXPECT_EQ(store.Read("macro", "library"), name);
  EXPECT_EQ(session.libraryNames.at(static_cast<std::size_t>(session.libIndex)), name);
  EXPECT_EQ(session.library.lastBoard, 2);
  EXPECT_EQ(session.board.boardNumber, 1);
  EXPECT_EQ(ReadFile(Root() / place / "LIN.txt"), "results");
  EXPECT_TRUE(fs::exists(Other() / place / "002.txt"));
}

TEST_F(LibraryImport, WhatCountsAsABoardIsListed) {
  for (const char* library : {"Old", "Older"}) {
    for (const char* name : {"001.TXT", "002.Txt", "002.txt", "LIN.TXT", "more/003.TXT"}) {
      WriteFile(Other() / "from" / library / name, test::OneSuitEachText() + name);
    }
  }
  EXPECT_TRUE(ImportLibraryFrom(session, Other() / "from" / "Old"));
  host.ExpectAskWith("1 of the libraries in", Answer::OK);
  host.ExpectTell("1 library has been copied");
  EXPECT_TRUE(ImportLibrariesFrom(session, Other() / "from"));
  for (const char* library : {"Old", "Older"}) {
    const fs::path copy = Root() / library;
    EXPECT_TRUE(ReadFile(copy / "001.txt").ends_with("001.TXT"));
    EXPECT_FALSE(fs::exists(copy / "001.TXT"));
    EXPECT_TRUE(ReadFile(copy / "002.txt").ends_with("002.txt"));
    for (const char* name : {"002.Txt", "LIN.TXT", "more/003.TXT"}) {
      EXPECT_TRUE(fs::exists(copy / name)) << name;
    }
  }
  EXPECT_EQ(session.library.boardCount, 2);
  EXPECT_TRUE(ExportLibraryTo(session, Other()));
}

TEST_F(LibraryImport, RefusesToImportWhatIsNoNewLibrary) {
  WriteFile(Other() / "CLUB" / "001.txt", "x");
  WriteFile(Other() / "Texts" / "notes.txt", "x");
  WriteFile(Other() / "Texts" / "01.txt", "x");
  WriteFile(Other() / "Texts" / "1234.txt", "x");
  fs::create_directories(Other() / "Texts" / "001.txt");
  WriteFile(Other() / ".git" / "001.txt", "x");
  const struct {
    fs::path folder;
    std::string message;
  } cases[] = {
      {Other() / "CLUB",
       "You already have a library - CLUB\n"
       "Please delete it before importing a library of the same name"},
      {Root() / "Club" / "",
       "You already have a library - Club\n"
       "Please delete it before importing a library of the same name"},
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
  EXPECT_EQ(session.LibraryName(), "Club");
  EXPECT_EQ(FoldersOf(Root()).size(), 2U);

  WriteFile(Other() / "Good" / u8"\u00e9b1.TXT", "three characters");
  ExpectUnsavedQuestion(Answer::Cancel);
  EXPECT_FALSE(ImportLibraryFrom(session, Other() / "Good"));
  EXPECT_FALSE(fs::exists(Root() / "Good"));
  ExpectUnsavedQuestion(Answer::Yes);
  host.ExpectAskWith("Overwrite existing board 1?", Answer::Yes);
  EXPECT_TRUE(ImportLibraryFrom(session, Other() / "Good"));
}

TEST_F(LibraryImport, ImportsAllNewLibrariesAndSaysSo) {
  const std::string at = PathText(Other());
  const struct {
    const char* name;
    int same;
    int empty;
    int fresh;
    std::string message;  // the question, or what is told when there is nothing to ask
    std::string report;
  } cases[] = {
      {"none", 0, 0, 0, "There are no libraries in the folder\n", ""},
      {"nothing new", 1, 1, 0, "There are no other libraries in the folder\n", ""},
      {"one", 0, 0, 1, "1 library will be copied from\n", "1 library has been copied"},
      {"one of each", 1, 1, 1,
       "1 of the libraries in\nDIR\nhas the same name as one of your existing libraries\n"
       "and so will not be copied\n\n1 other library will be copied from\n",
       "1 library contains no boards\nso has not been copied\n\n1 library has been copied"},
      {"two of each", 2, 2, 2,
       "2 of the libraries in\nDIR\nhave the same name as your existing libraries\n"
       "and so will not be copied\n\n2 other libraries will be copied from\n",
       "2 libraries contain no boards\nso have not been copied\n\n2 libraries have been copied"},
  };
  for (const auto& c : cases) {
    const fs::path from = Other() / c.name;
    fs::create_directories(from);
    for (int i = 0; i < c.same; ++i) {
      WriteFile(from / (i == 0 ? "Club" : "teaching") / "001.txt", "theirs");
    }
    for (int i = 0; i < c.empty; ++i)
      fs::create_directories(from / ("no boards" + std::to_string(i)));
    for (int i = 0; i < c.fresh; ++i) {
      WriteFile(from / (c.name + std::to_string(i)) / "001.txt", c.name);
    }
    std::string message = c.message + PathText(from);
    if (const auto place = message.find("DIR"); place != std::string::npos) {
      message.replace(place, 3, PathText(from));
    }
    const std::size_t before = FoldersOf(Root()).size();
    session.board.handChanged = true;  // the board is not left, and keeps its changes
    if (c.fresh == 0) {
      host.ExpectTell(message);
      EXPECT_FALSE(ImportLibrariesFrom(session, from));
    } else {
      host.ExpectAsk(message, "Tricklet", Answer::Cancel);
      EXPECT_FALSE(ImportLibrariesFrom(session, from));
      host.ExpectAsk(message, "Tricklet", Answer::OK);
      host.ExpectTell(c.report);
      EXPECT_TRUE(ImportLibrariesFrom(session, from));
    }
    EXPECT_EQ(FoldersOf(Root()).size(), before + static_cast<std::size_t>(c.fresh)) << c.name;
    EXPECT_EQ(session.libraryNames, FoldersOf(Root()));
    EXPECT_EQ(session.LibraryName(), "Club");
    EXPECT_TRUE(session.board.handChanged);
  }
  EXPECT_EQ(ReadFile(Root() / "Teaching" / "007.txt"), "seven");
}

}  // namespace
}  // namespace tricklet
