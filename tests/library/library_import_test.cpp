// Importing whole libraries.
#include <regex>
#include <tuple>

#include <gtest/gtest.h>

#include "tests/library/transfer_fixture.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;
using test::Joined;
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
  EXPECT_EQ(Shown(), name + " 1 of 2, 1 stored");
  EXPECT_EQ(store.Read("macro", "library"), name);
  EXPECT_EQ(Joined(session.libraryNames), name + ", Club, Teaching");
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
  for (const char* file : {"CLUB/001.txt", "Texts/notes.txt", "Texts/01.txt", "Texts/1234.txt",
                           "Texts/001.txt/a folder", ".git/001.txt"}) {
    WriteFile(Other() / file, "x");
  }
  const std::string taken = "\nPlease delete it before importing a library of the same name";
  const std::pair<fs::path, std::string> cases[] = {
      {Other() / "CLUB", "You already have a library - CLUB" + taken},
      {Root() / "Club" / "", "You already have a library - Club" + taken},
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
  // How many have the name of a library, no boards, and neither; the question, or what is told when
  // there is nothing to ask; what is told at the end.
  const std::tuple<int, int, int, std::string, const char*> cases[] = {
      {0, 0, 0, "There are no libraries in the folder\nDIR", ""},
      {1, 1, 0, "There are no other libraries in the folder\nDIR", ""},
      {0, 0, 1, "1 library will be copied from\nDIR", "1 library has been copied"},
      {1, 1, 1,
       "1 of the libraries in\nDIR\nhas the same name as one of your existing libraries\n"
       "and so will not be copied\n\n1 other library will be copied from\nDIR",
       "1 library contains no boards\nso has not been copied\n\n1 library has been copied"},
      {2, 2, 2,
       "2 of the libraries in\nDIR\nhave the same name as your existing libraries\n"
       "and so will not be copied\n\n2 other libraries will be copied from\nDIR",
       "2 libraries contain no boards\nso have not been copied\n\n2 libraries have been copied"},
  };
  const std::vector<std::string> names{"Club", "teaching"};
  std::size_t libraries = names.size();
  session.board.handChanged = true;  // the board is not left, and keeps its changes
  for (const auto& [same, empty, fresh, text, report] : cases) {
    const std::string name = std::to_string(same) + std::to_string(fresh);
    const fs::path from = Other() / name;
    fs::create_directories(from);
    for (int i = 0; i < same; ++i)
      WriteFile(from / names.at(static_cast<std::size_t>(i)) / "001.txt", "theirs");
    for (int i = 0; i < empty; ++i) fs::create_directories(from / ("none" + std::to_string(i)));
    for (int i = 0; i < fresh; ++i) WriteFile(from / (name + std::to_string(i)) / "001.txt", "x");
    const std::string message = std::regex_replace(text, std::regex("DIR"), PathText(from));
    if (fresh == 0) {
      host.ExpectTell(message);
      EXPECT_FALSE(ImportLibrariesFrom(session, from));
    } else {
      host.ExpectAsk(message, "Tricklet", Answer::Cancel);
      EXPECT_FALSE(ImportLibrariesFrom(session, from));
      host.ExpectAsk(message, "Tricklet", Answer::OK);
      host.ExpectTell(report);
      EXPECT_TRUE(ImportLibrariesFrom(session, from));
    }
    libraries += static_cast<std::size_t>(fresh);
    EXPECT_EQ(FoldersOf(Root()).size(), libraries) << name;
    EXPECT_EQ(session.libraryNames, FoldersOf(Root()));
  }
  EXPECT_EQ(session.LibraryName(), "Club");
  EXPECT_TRUE(session.board.handChanged);
  EXPECT_EQ(ReadFile(Root() / "Teaching" / "007.txt"), "seven");
}

}  // namespace
}  // namespace tricklet
