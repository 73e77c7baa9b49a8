// Copies that are complete or undone, on real folders.
#include "library/folder_copy.h"

#include <chrono>
#include <map>

#include <gtest/gtest.h>

#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#endif

#include "core/fault.h"
#include "disk/presence.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

/// Every path below `folder` with the bytes of the files, links as "->".
std::map<std::string, std::string> Contents(const fs::path& folder) {
  std::map<std::string, std::string> contents;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    const std::string name = PathText(fs::relative(entry.path(), folder));
    contents[name] = entry.is_symlink()        ? "->"
                     : entry.is_regular_file() ? ReadFile(entry.path())
                                               : "";
  }
  return contents;
}

class FolderCopyTest : public testing::Test {
 protected:
  FolderCopyTest() {
    WriteFile(From() / "001.txt", "one");
    WriteFile(From() / "002.txt", std::string(1'100'000, 'b'));
    WriteFile(From() / u8"notes \u00e9" / "deep" / "readme", "deep down");
    fs::create_directories(From() / "empty");
    fs::create_directories(To());
    WriteFile(To() / "Old" / "001.txt", "old one");
    WriteFile(To() / "Old" / "009.txt", "nine");
  }

  fs::path From() const { return folder.Path() / "from"; }
  fs::path To() const { return folder.Path() / "to"; }
  /// The folder in which the copy is made ready; empty when there is none.
  fs::path Staging() const {
    for (const auto& entry : fs::directory_iterator(To())) {
      if (PathText(entry.path().filename()).starts_with(".tricklet-copy-")) return entry.path();
    }
    return {};
  }

  /// Copies `From()` under each of the names.
  bool Copy(std::initializer_list<const char*> names, const fs::path& into) {
    FolderCopy copy(host, into);
    for (const char* name : names) copy.Add(From(), name);
    return copy.Run();
  }
  /// Copies as a new folder and over an old one; expects the fault, and that nothing has changed.
  void ExpectUndone(FaultNumber number) {
    const auto before = Contents(To());
    try {
      Copy({"New", "Old"}, To());
      ADD_FAILURE() << "no failure";
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Number(), number) << fault.Description();
    }
    EXPECT_EQ(Contents(To()), before);
    EXPECT_EQ(host.working, 0);
  }

  TempFolder folder;
  ScriptedHost host;
};

TEST_F(FolderCopyTest, CopiesNewFoldersWholeAndAddsToOldOnes) {
  const auto old = fs::file_time_type::clock::now() - std::chrono::hours(48);
  fs::last_write_time(From() / "001.txt", old);
  WriteFile(From() / (std::string(250, 'n') + ".txt"), "as long as a name can be");
  fs::permissions(From() / "002.txt", fs::perms::owner_read);
  EXPECT_TRUE(Copy({"New", "Old"}, To()));
  auto expected = Contents(From());
  EXPECT_EQ(Contents(To() / "New"), expected);
  expected["009.txt"] = "nine";
  EXPECT_EQ(Contents(To() / "Old"), expected);
  EXPECT_EQ(std::distance(fs::directory_iterator(To()), {}), 2) << "nothing else is left there";
  // Some systems set it to a whole second.
  EXPECT_LT(std::chrono::abs(fs::last_write_time(To() / "New" / "001.txt") - old),
            std::chrono::seconds(1));
  EXPECT_TRUE(IsReadOnly(To() / "New" / "002.txt"));
  EXPECT_FALSE(IsReadOnly(To() / "New" / "001.txt"));
  EXPECT_EQ(Joined(host.recycled), "");
  EXPECT_EQ(host.steps.back(), "Copying library Old");
}

TEST_F(FolderCopyTest, CancelledAtAnyStepEverythingIsAsItWas) {
  const auto before = Contents(folder.Path());
  const fs::path into = folder.Path() / "a" / "b";
  host.cancelAtStep = 1;
  while (!Copy({"New", "Old"}, host.cancelAtStep % 2 == 0 ? into : To())) {
    EXPECT_EQ(Contents(folder.Path()), before) << host.cancelAtStep;
    host.steps.clear();
    ASSERT_LT(++host.cancelAtStep, 100);
  }
  EXPECT_GT(host.cancelAtStep, 10) << "folders, files and pieces of files are steps";
}

TEST_F(FolderCopyTest, WithoutARecycleBinTheIncompleteCopyIsNamed) {
  host.hasRecycleBin = false;
  host.cancelAtStep = 8;
  host.ExpectTellWith("Unable to send the incomplete copy to the recycle bin:\n" +
                      PathText(To() / ".tricklet-copy-"));
  EXPECT_FALSE(Copy({"New"}, To()));
  EXPECT_FALSE(fs::exists(To() / "New"));

  host.cancelAtStep = 0;
  EXPECT_TRUE(Copy({"New"}, To())) << "what was left is in nobody's way";
  EXPECT_EQ(Contents(To() / "New"), Contents(From()));
}

TEST_F(FolderCopyTest, WhatIsInTheWayOrTooDeepIsFoundBeforeAnythingIsWritten) {
  for (const fs::path place : {"Old/002.txt", "Old/empty", "New"}) {
    // A folder where a file is to be, or a file where a folder.
    WriteFile(To() / (place.has_extension() ? place / "inside" : place), "");
    ExpectUndone(FaultNumber::PathFileAccess);
    fs::remove_all(To() / place);
  }
  fs::permissions(To() / "Old" / "001.txt", fs::perms::owner_read);
  ExpectUndone(FaultNumber::PermissionDenied);
  fs::path deep = From();
  for (int i = 0; i < 40; ++i) deep /= "d";
  fs::create_directories(deep);
  ExpectUndone(FaultNumber::PathFileAccess);
  EXPECT_EQ(Joined(host.recycled), "");
}

TEST_F(FolderCopyTest, AFolderThatAppearsMeanwhileIsNotTouched) {
  host.onStep = [this] {  // after what is in the way was found
    if (!fs::exists(Staging() / "New")) return;
    WriteFile(To() / "New" / "001.txt", "another program's");
  };
  EXPECT_THROW(Copy({"Aaa", "New"}, To()), Fault);
  EXPECT_EQ(ReadFile(To() / "New" / "001.txt"), "another program's");
  EXPECT_FALSE(fs::exists(To() / "Aaa")) << "what was in its place already is undone too";
  EXPECT_EQ(std::distance(fs::directory_iterator(To()), {}), 2);
}

TEST_F(FolderCopyTest, BoardsThatWereReplacedComeBackWhenALaterLibraryFails) {
  WriteFile(To() / "Old" / u8"notes \u00e9" / "kept", "kept");
  WriteFile(To() / "Older" / "001.txt", "older one");
  const auto before = Contents(To());
  host.onStep = [this] {  // while the last files are copied, after what is in the way was found
    if (fs::exists(Staging() / "Older")) {
      fs::create_directories(To() / "Older" / u8"notes \u00e9" / "deep" / "readme");
    }
  };
  EXPECT_THROW(Copy({"Old", "Older"}, To()), Fault);
  fs::remove_all(To() / "Older" / u8"notes \u00e9");
  EXPECT_EQ(Contents(To()), before);
  EXPECT_TRUE(Joined(host.recycled).starts_with(".tricklet-copy-"));
}

TEST_F(FolderCopyTest, AFileThatVanishesIsNotCopiedAndAFolderThatVanishesFails) {
  host.onStep = [this] {
    if (host.steps.size() == 4) fs::remove(From() / "001.txt");
  };
  EXPECT_TRUE(Copy({"New"}, To()));
  EXPECT_EQ(Contents(To() / "New"), Contents(From()));

  fs::remove_all(To() / "New");
  host.steps = {};
  host.onStep = [this] {
    if (host.steps.size() == 9) fs::remove_all(From());
  };
  ExpectUndone(FaultNumber::FileNotFound);
  ExpectUndone(FaultNumber::PathNotFound);
}

TEST_F(FolderCopyTest, FindsFoldersInEachOther) {
  fs::create_directory_symlink(From(), folder.Path() / "link");
  const fs::path through = folder.Path() / "link" / "x";
  for (const fs::path& other : {From(), From() / "not there" / "yet", From() / "empty", through}) {
    EXPECT_TRUE(FoldersOverlap(From(), other) && FoldersOverlap(other, From())) << other;
  }
  const fs::path roundabout = From() / "empty" / ".." / ".." / "to";
  for (const fs::path& other : {roundabout, To(), folder.Path() / "from2"}) {
    EXPECT_FALSE(FoldersOverlap(From(), other) || FoldersOverlap(other, From())) << other;
  }
}

#ifndef _WIN32

TEST_F(FolderCopyTest, LinksAndPipesAreLeftOut) {
  const auto before = Contents(From());
  fs::create_symlink(To() / "Old" / "001.txt", From() / "003.txt");
  fs::create_directory_symlink(From(), From() / "round");
  fs::create_symlink("nowhere", From() / "dangling");
  ASSERT_EQ(::mkfifo((From() / "004.txt").c_str(), 0600), 0);
  FolderCopy copy(host, To());
  copy.Add(From(), "New");
  EXPECT_TRUE(copy.Run());
  EXPECT_EQ(Contents(To() / "New"), before);
  EXPECT_EQ(copy.LeftOut(), 4);
}

TEST_F(FolderCopyTest, ADiskThatIsFullInMidFileUndoesTheCopy) {
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  const rlimit limit{1'080'000, before.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &limit);  // no file can grow beyond that, as on a full disk
  ExpectUndone(FaultNumber::DiskFull);
  ::setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_TRUE(Joined(host.recycled).starts_with(".tricklet-copy-"));
}

#endif

}  // namespace
}  // namespace tricklet::test
