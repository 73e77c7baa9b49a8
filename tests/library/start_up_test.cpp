#include "library/start_up.h"

#include <tuple>

#include <gtest/gtest.h>

#include "core/version.h"
#include "library/library_choice.h"
#include "library/library_names.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

class StartUp : public LibraryTest {};

const std::string kNoRoot =
    "Please choose a folder (new or existing)\nwhere you will keep your library of hands";

TEST_F(StartUp, TheFirstStartAsksForARootAndMakesTheDefaultLibrary) {
  session.settings = Settings();
  host.ExpectTell(kNoRoot);
  host.Choose(folder.Path().root_path());
  host.ExpectTell("Please choose a folder, not " + PathText(folder.Path().root_path()));
  WriteFile(folder.Path() / "file", "in the way");
  host.Choose(folder.Path() / "file" / "hands");
  host.ExpectTellWith(PathText(folder.Path() / "file"));
  host.Choose(folder.Path() / "hands");
  EXPECT_TRUE(OpenLibraries(session));
  EXPECT_EQ(store.Read("macro", "filelocation"), FolderText(folder.Path() / "hands"));
  EXPECT_TRUE(fs::is_directory(folder.Path() / "hands" / "Default"));
  EXPECT_EQ(Shown(), "Default 1 of 24, 0 stored");
}

TEST_F(StartUp, WithoutARootTheProgramEnds) {
  session.settings.filelocation = FolderText(folder.Path() / "deleted");
  host.ExpectTell(kNoRoot);
  host.Choose(std::nullopt);
  host.ExpectTell("You must choose a folder");
  EXPECT_FALSE(OpenLibraries(session));
  EXPECT_FALSE(store.Read("macro", "filelocation"));
}

TEST_F(StartUp, AStoredLibraryThatIsGoneIsMadeAgainWhereItCanBe) {
  for (const std::string name : {"Last year", "St. Ives"}) {  // a file manager named the second
    session.settings.library = name;
    EXPECT_TRUE(OpenLibraries(session));
    EXPECT_EQ(session.LibraryName(), name);
    EXPECT_TRUE(fs::is_directory(session.LibraryPath()));
  }
  for (const std::string name : {"", "a:b", "../up"}) {
    if (!name.empty() && !IsLibraryName(name)) {
      host.ExpectTell("A library cannot be named " + name);
    }
    session.settings.library = name;
    EXPECT_TRUE(OpenLibraries(session));
    EXPECT_EQ(session.LibraryName(), "Club") << name;
  }
  EXPECT_EQ(Joined(session.libraryNames), "Club, Last year, St. Ives");
}

TEST_F(StartUp, ALibraryThatIsAskedForIsNotMade) {
  fs::create_directory(folder.Path() / u8"\u00c9t\u00e9");
  const std::tuple<const char*, std::string, const char*> kCases[] = {
      {"Club", "\u00e9t\u00e9", "\u00c9t\u00e9"},
      {"\u00c9t\u00e9", "Clubb", "\u00c9t\u00e9"},
      {"Gone", "../Club", "Club"},
      {"Gone", "Gone", "Club"}};
  for (const auto& [stored, asked, opened] : kCases) {
    session.settings.library = stored;
    if (asked != "\u00e9t\u00e9") {
      host.ExpectTell("There is no library " + asked + " in " + session.settings.filelocation);
    }
    EXPECT_TRUE(OpenLibraries(session, asked));
    EXPECT_EQ(session.LibraryName(), opened) << asked;
  }
  EXPECT_EQ(Joined(session.libraryNames), "Club, \u00c9t\u00e9");
}

TEST_F(StartUp, ARootThatGoesLaterIsNotMadeAnew) {
  EXPECT_TRUE(OpenLibraries(session));
  fs::remove_all(session.FileLocation());
  host.ExpectTell("There is no folder " + session.settings.filelocation);
  GetLibraryNames(session);
  EXPECT_FALSE(fs::exists(session.FileLocation()));
  EXPECT_EQ(Joined(session.libraryNames), "Club");
}

TEST_F(StartUp, WhatCannotBeSeenIsNotForgotten) {
  fs::create_symlink("Loop", folder.Path() / "Loop");
  session.settings.library = "Loop";
  host.ExpectAskWith("Too many levels of symbolic links: ", Answer::Yes);
  EXPECT_TRUE(OpenLibraries(session));
  EXPECT_EQ(session.LibraryName(), "Loop");
  EXPECT_EQ(session.libIndex, -1);

  session.settings.filelocation = FolderText(folder.Path() / "Loop");
  host.ExpectTell("Unable to open the libraries:\nToo many levels of symbolic links: " +
                  session.settings.filelocation);
  EXPECT_FALSE(OpenLibraries(session));
  EXPECT_EQ(session.settings.filelocation, FolderText(folder.Path() / "Loop"));
}

TEST_F(StartUp, TheNoticeComesUntilItIsNotWantedAnyMore) {
  for (const Answer answer : {Answer::Yes, Answer::Cancel, Answer::No}) {
    EXPECT_FALSE(store.Read("Tricklet", "ShowMessage"));
    host.ExpectAskWith("Do you want to see this message next time Tricklet starts?", answer);
    ShowNotice(session);
  }
  EXPECT_EQ(store.Read("Tricklet", "ShowMessage"),
            std::to_string(100 * kVersionMajor + kVersionMinor));
  ShowNotice(session);
}

}  // namespace
}  // namespace tricklet::test
