#include "library/replaced_boards.h"

#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

#include "core/fault.h"
#include "library/library_write.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

/// What lies in the folder, without the lock.
std::string In(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) {
    const std::string name = PathText(entry.path().filename());
    if (name != ".tricklet-lock") names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return Joined(names);
}

class ReplacedBoardsTest : public LibraryTest {
 protected:
  ReplacedBoardsTest() {
    WriteFile(session.BoardPath(1), "old 1");
    WriteFile(session.BoardPath(2), "old 2");
    write->KeepReplaced(session, "import");
  }
  void Replace(int number, const std::string& text) {
    write->Replace(session.BoardPath(number), text);
  }

  std::optional<LibraryWrite> write = LibraryWrite::Begin(session);
};

TEST_F(ReplacedBoardsTest, SendsToTheBinWhatHasBeenReplaced) {
  const std::string before = In(session.LibraryPath());
  Replace(1, "new 1");
  Replace(1, "newer 1");  // of one command only the first was the person's
  Replace(2, "old 2");
  Replace(9, "new 9");
  Replace(9, "newer 9");
  EXPECT_EQ(write->RecycleReplaced(host), "");
  EXPECT_EQ(host.replaced, std::vector<std::string>{"Club before import: 001.txt"});
  EXPECT_EQ(In(session.LibraryPath()), before + ", 009.txt");
  EXPECT_EQ(write->RecycleReplaced(host), "") << "there is nothing left to send";
  EXPECT_EQ(host.replaced.size(), 1U);
}

TEST_F(ReplacedBoardsTest, KeepsWhatALinkLeadsTo) {
  WriteFile(folder.Path() / "elsewhere", "old 3");
  fs::create_symlink(folder.Path() / "elsewhere", session.BoardPath(3));
  Replace(3, "new 3");
  EXPECT_EQ(ReadFile(folder.Path() / "elsewhere"), "new 3");
  host.hasRecycleBin = false;
  const std::string told = write->RecycleReplaced(host);
  EXPECT_EQ(ReadFile(PathFromText(told.substr(told.rfind('\n') + 1)) / "003.txt"), "old 3");
}

TEST_F(ReplacedBoardsTest, WhatTheBinRefusesStaysBesideTheLibrary) {
  host.hasRecycleBin = false;
  Replace(1, "new 1");
  Replace(2, "new 2");
  const std::string told = write->RecycleReplaced(host);
  const fs::path kept = PathFromText(told.substr(told.rfind('\n') + 1));
  EXPECT_EQ(kept.parent_path(), folder.Path());
  EXPECT_EQ(ReadFile(kept / "001.txt") + ReadFile(kept / "002.txt"), "old 1old 2");
}

TEST_F(ReplacedBoardsTest, NothingIsReplacedThatCannotBeKept) {
  fs::create_symlink("003.txt", session.BoardPath(3));  // nobody can say what is there
  EXPECT_THROW(Replace(3, "new 3"), Fault);
  EXPECT_EQ(write->RecycleReplaced(host), "");
  EXPECT_TRUE(host.replaced.empty());
}

TEST_F(ReplacedBoardsTest, ALibraryMayHaveTheLongestName) {
  session.settings.library.clear();
  for (int i = 0; i < 127; ++i) session.settings.library += "\u00e9";
  WriteFile(session.BoardPath(1), "old 1");
  write.reset();
  auto other = LibraryWrite::Begin(session);
  other->KeepReplaced(session, "generation");
  other->Replace(session.BoardPath(1), "new 1");
  EXPECT_EQ(other->RecycleReplaced(host), "");
  ASSERT_EQ(host.replaced.size(), 1U);
  EXPECT_TRUE(host.replaced.front().ends_with("\u00e9 before generation: 001.txt"));
}

TEST_F(ReplacedBoardsTest, WhatAKilledProgramHasKeptIsSentByTheNextOne) {
  write.reset();
  const fs::path hidden = session.LibraryPath() / ".tricklet-kept-999999999-0";
  WriteFile(hidden / "Club 2026-11-22 10.31 before import/002.txt", "old 2");
  Session next(host, store);
  next.settings = session.settings;
  EXPECT_TRUE(LibraryWrite::Begin(next));
  EXPECT_EQ(host.replaced, std::vector<std::string>{"Club before import: 002.txt"});
  EXPECT_FALSE(fs::exists(hidden));
}

TEST_F(ReplacedBoardsTest, KeepsNothingWhereTheSettingsDoNotWantIt) {
  session.settings.recycleReplaced = false;
  auto other = LibraryWrite::Begin(session);
  other->KeepReplaced(session, "import");
  other->Replace(session.BoardPath(1), "new 1");
  EXPECT_EQ(other->RecycleReplaced(host), "");
  EXPECT_TRUE(host.replaced.empty());
}

}  // namespace
}  // namespace tricklet::test
