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
#include "library/file_io.h"
#include "tests/support/library_fixture.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;
using test::ReadFile;
using test::WriteFile;

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

  /// Copies as a new folder and over an old one; expects the fault, and that nothing has changed.
  void ExpectUndone(FaultNumber number) {
    const auto before = Contents(To());
    FolderCopy copy(host, To());
    copy.Add(From(), "New");
    copy.Add(From(), "Old");
    try {
      copy.Run();
      ADD_FAILURE() << "no failure";
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.Number(), number) << fault.Description();
    }
    EXPECT_EQ(Contents(To()), before);
    EXPECT_EQ(host.working, 0);
  }

  test::TempFolder folder;
  test::ScriptedHost host;
};

TEST_F(FolderCopyTest, CopiesNewFoldersWholeAndAddsToOldOnes) {
  const auto old = fs::file_time_type::clock::now() - std::chrono::hours(48);
  fs::last_write_time(From() / "001.txt", old);
  WriteFile(From() / (std::string(250, 'n') + ".txt"), "as long as a name can be");
  fs::permissions(From() / "002.txt", fs::perms::owner_read);
  FolderCopy copy(host, To());
  copy.Add(From(), "New");
  copy.Add(From(), "Old");
  EXPECT_TRUE(copy.Run());
  auto expected = Contents(From());
  EXPECT_EQ(Contents(To() / "New"), expected);
  expected["009.txt"] = "nine";
  EXPECT_EQ(Contents(To() / "Old"), expected);
  EXPECT_EQ(std::distance(fs::directory_iterator(To()), {}), 2) << "nothing else is left there";
  EXPECT_EQ(fs::last_write_time(To() / "New" / "001.txt"), old);
  EXPECT_TRUE(IsReadOnly(To() / "New" / "002.txt"));
  EXPECT_FALSE(IsReadOnly(To() / "New" / "001.txt"));
  EXPECT_EQ(host.recycled, std::vector<std::string>{});
  EXPECT_EQ(host.steps.back(), "Copying library Old");
}

TEST_F(FolderCopyTest, CancelledAtAnyStepEverythingIsAsItWas) {
  const auto before = Contents(folder.Path());
  const fs::path into = folder.Path() / "a" / "b";
  int step = 0;
  bool done = false;
  while (!done && step < 100) {
    host.steps.clear();
    host.cancelAtStep = ++step;
    FolderCopy copy(host, step % 2 == 0 ? into : To());
    copy.Add(From(), "New");
    copy.Add(From(), "Old");
    done = copy.Run();
    if (!done) {
      EXPECT_EQ(Contents(folder.Path()), before) << step;
    }
  }
  EXPECT_GT(step, 10) << "folders, files and pieces of files are steps";
  EXPECT_TRUE(done);
}

TEST_F(FolderCopyTest, WithoutARecycleBinTheIncompleteCopyIsNamed) {
  host.hasRecycleBin = false;
  host.cancelAtStep = 8;
  host.ExpectTell("Unable to send the incomplete copy to the recycle bin:\n" +
                  PathText(To() / ".tricklet-copy-1"));
  FolderCopy copy(host, To());
  copy.Add(From(), "New");
  EXPECT_FALSE(copy.Run());
  EXPECT_FALSE(fs::exists(To() / "New"));

  host.cancelAtStep = 0;
  FolderCopy again(host, To());
  again.Add(From(), "New");
  EXPECT_TRUE(again.Run()) << "what was left is in nobody's way";
  EXPECT_EQ(Contents(To() / "New"), Contents(From()));
}

TEST_F(FolderCopyTest, WhatIsInTheWayIsFoundBeforeAnythingIsWritten) {
  fs::create_directories(To() / "Old" / "002.txt");
  ExpectUndone(FaultNumber::PathFileAccess);
  fs::remove(To() / "Old" / "002.txt");
  WriteFile(To() / "Old" / "empty", "a file where a folder is to be");
  ExpectUndone(FaultNumber::PathFileAccess);
  fs::remove(To() / "Old" / "empty");
  WriteFile(To() / "New", "a file");
  ExpectUndone(FaultNumber::PathFileAccess);
  fs::remove(To() / "New");
  fs::permissions(To() / "Old" / "001.txt", fs::perms::owner_read);
  ExpectUndone(FaultNumber::PermissionDenied);
  EXPECT_EQ(host.recycled, std::vector<std::string>{});
}

TEST_F(FolderCopyTest, AFolderThatAppearsMeanwhileIsNotTouched) {
  host.onStep = [this] {
    if (host.steps.size() == 8) WriteFile(To() / "New" / "001.txt", "another program's");
  };
  FolderCopy copy(host, To());
  copy.Add(To() / "Old", "Aaa");
  copy.Add(From(), "New");
  EXPECT_THROW(copy.Run(), Fault);
  EXPECT_EQ(ReadFile(To() / "New" / "001.txt"), "another program's");
  EXPECT_FALSE(fs::exists(To() / "Aaa")) << "what was in its place already is undone too";
  EXPECT_EQ(std::distance(fs::directory_iterator(To()), {}), 2);
}

TEST_F(FolderCopyTest, BoardsThatWereReplacedComeBackWhenALaterLibraryFails) {
  WriteFile(To() / "Old" / u8"notes \u00e9" / "kept", "kept");
  WriteFile(To() / "Older" / "001.txt", "older one");
  const auto before = Contents(To());
  FolderCopy copy(host, To());
  copy.Add(From(), "Old");
  copy.Add(From(), "Older");
  host.onStep = [this] {  // while the last files are copied, after what is in the way was found
    if (fs::exists(To() / ".tricklet-copy-1" / "Older")) {
      fs::create_directories(To() / "Older" / u8"notes \u00e9" / "deep" / "readme");
    }
  };
  EXPECT_THROW(copy.Run(), Fault);
  fs::remove_all(To() / "Older" / u8"notes \u00e9");
  EXPECT_EQ(Contents(To()), before);
  EXPECT_EQ(host.recycled, std::vector<std::string>{".tricklet-copy-1"});
}

TEST_F(FolderCopyTest, AFileThatVanishesIsNotCopiedAndAFolderThatVanishesFails) {
  FolderCopy copy(host, To());
  host.onStep = [this] {
    if (host.steps.size() == 4) fs::remove(From() / "001.txt");
  };
  copy.Add(From(), "New");
  EXPECT_TRUE(copy.Run());
  EXPECT_EQ(Contents(To() / "New"), Contents(From()));

  fs::remove_all(To() / "New");
  host.steps = {};
  host.onStep = [this] {
    if (host.steps.size() == 9) fs::remove_all(From());
  };
  ExpectUndone(FaultNumber::FileNotFound);
  ExpectUndone(FaultNumber::PathNotFound);
}

TEST_F(FolderCopyTest, TooManyFoldersInEachOtherAreRefused) {
  fs::path deep = From();
  for (int i = 0; i < 40; ++i) deep /= "d";
  fs::create_directories(deep);
  ExpectUndone(FaultNumber::PathFileAccess);
}

TEST_F(FolderCopyTest, FindsFoldersInEachOther) {
  fs::create_directory_symlink(From(), folder.Path() / "link");
  const struct {
    fs::path a;
    fs::path b;
    bool overlap;
  } cases[] = {
      {From(), From(), true},
      {From(), From() / "not there" / "yet", true},
      {From() / "empty", From(), true},
      {From(), folder.Path() / "link" / "x", true},
      {From(), From() / "empty" / ".." / ".." / "to", false},
      {From(), To(), false},
      {From(), folder.Path() / "from2", false},
  };
  for (const auto& [a, b, overlap] : cases) {
    EXPECT_EQ(FoldersOverlap(a, b), overlap) << a << " " << b;
    EXPECT_EQ(FoldersOverlap(b, a), overlap) << b << " " << a;
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

/// No file can grow beyond some size, as on a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &before_); }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
};

TEST_F(FolderCopyTest, ADiskThatIsFullInMidFileUndoesTheCopy) {
  const FullDisk disk(1'080'000);
  ExpectUndone(FaultNumber::DiskFull);
  EXPECT_EQ(host.recycled, std::vector<std::string>{".tricklet-copy-1"});
}

#endif

}  // namespace
}  // namespace tricklet
