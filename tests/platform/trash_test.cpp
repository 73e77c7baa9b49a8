#include "platform/trash.h"

#include <csignal>
#include <cstdlib>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/library_fixture.h"

namespace tricklet::platform {
namespace {

namespace fs = std::filesystem;
using test::ReadFile;
using test::WriteFile;

class TrashTest : public testing::Test {
 protected:
  void SetUp() override { ::setenv("XDG_DATA_HOME", In("data").c_str(), 1); }
  void TearDown() override { ::unsetenv("XDG_DATA_HOME"); }
  fs::path In(const std::string& name) const { return folder.Path() / name; }
  fs::path Trash() const { return In("data") / "Trash"; }
  static std::ptrdiff_t Count(const fs::path& in) {
    return fs::exists(in) ? std::distance(fs::directory_iterator(in), {}) : 0;
  }

  test::TempFolder folder;
};

TEST_F(TrashTest, SaysWhereAThingWas) {
  WriteFile(In("a b%\u00fc/001.txt"), "board");
  fs::create_symlink("nothing", In("dangling"));
  EXPECT_TRUE(MoveToTrash(In("a b%\u00fc/")));
  EXPECT_TRUE(MoveToTrash(In("dangling")));
  EXPECT_EQ(ReadFile(Trash() / "files/a b%\u00fc/001.txt"), "board");
  EXPECT_TRUE(fs::is_symlink(Trash() / "files/dangling"));
  const std::string info = ReadFile(Trash() / "info/a b%\u00fc.trashinfo");
  EXPECT_EQ(info.rfind("[Trash Info]\nPath=/", 0), 0U) << info;
  EXPECT_NE(info.find("/a%20b%25%C3%BC\nDeletionDate=20"), std::string::npos) << info;
  EXPECT_FALSE(MoveToTrash(In("dangling"))) << "it has gone";
}

TEST_F(TrashTest, TakesNamesOfEveryLength) {
  for (std::size_t length = 243; length <= 255; ++length) {
    std::string name(length, 'x');
    name.replace(230, 5, "\u2660\u00e9");  // the endings may fall into a character
    for (int times = 1; times <= 2; ++times) {
      WriteFile(In(name), std::to_string(length));
      EXPECT_TRUE(MoveToTrash(In(name))) << length;
    }
  }
  EXPECT_EQ(Count(Trash() / "files"), 26);
  EXPECT_EQ(Count(Trash() / "info"), 26);
  for (const auto& entry : fs::directory_iterator(Trash() / "files")) {
    EXPECT_TRUE(IsValidUtf8(PathText(entry.path().filename())));
  }
}

TEST_F(TrashTest, ATakenNameIsNumbered) {
  WriteFile(Trash() / "info/001.txt.trashinfo", "without its file");
  WriteFile(Trash() / "files/001.txt.2", "without its record");
  for (const char* data : {"first", "second"}) {
    WriteFile(In("001.txt"), data);
    EXPECT_TRUE(MoveToTrash(In("001.txt")));
  }
  EXPECT_EQ(ReadFile(Trash() / "files/001.txt.3"), "first");
  EXPECT_EQ(ReadFile(Trash() / "files/001.txt.4"), "second");
  EXPECT_EQ(Count(Trash() / "info"), 3);
}

TEST_F(TrashTest, WhatCannotBeMovedStays) {
  struct Case {
    const char* file;  // stands where the trash needs a folder
    const char* thing;
  };
  for (const Case& each : {Case{"data/Trash/info", "001.txt"}, Case{"data/Trash/files", "001.txt"},
                           Case{"data/Trash", "001.txt"}, Case{"data", "001.txt"},
                           Case{"unrelated", "data"}, Case{"unrelated", "none"}}) {
    WriteFile(In("001.txt"), "board");
    WriteFile(In(each.file), "in the way");
    EXPECT_FALSE(MoveToTrash(In(each.thing))) << each.file;
    EXPECT_EQ(ReadFile(In("001.txt")), "board");
    EXPECT_EQ(ReadFile(In(each.file)), "in the way");
    fs::remove_all(In(each.file));
    EXPECT_EQ(Count(Trash()), 0) << each.file << ": a folder was half made";
    fs::remove_all(In("data"));
  }
}

TEST_F(TrashTest, ARecordThatCannotBeWrittenIsNotLeft) {
  WriteFile(In("001.txt"), "board");
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  rlimit none = before;
  none.rlim_cur = 8;  // bytes, and the program ignores the signal of the limit
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  ::setrlimit(RLIMIT_FSIZE, &none);
  const bool moved = MoveToTrash(In("001.txt"));
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_FALSE(moved);
  EXPECT_TRUE(fs::exists(In("001.txt")));
  EXPECT_FALSE(fs::exists(In("data")));
}

/// A folder on a volume other than that of the home folder: that of shared memory, which each Linux
/// has.
class OtherVolume : public TrashTest {
 protected:
  void SetUp() override {
    TrashTest::SetUp();
    struct stat here {};
    struct stat there {};
    ::stat(folder.Path().c_str(), &here);
    ASSERT_EQ(::stat("/dev/shm", &there), 0);
    ASSERT_NE(here.st_dev, there.st_dev) << "/dev/shm is to be a volume of its own";
    WriteFile(thing, "board");
  }
  void TearDown() override {
    const fs::path file = InTrash("files", "");
    const fs::path info = InTrash("info", ".trashinfo");
    const fs::path trash = file.parent_path().parent_path();
    for (const fs::path& path :
         {thing, file, info, file.parent_path(), info.parent_path(), trash}) {
      std::error_code ignored;
      fs::remove(path, ignored);  // a folder only if it is empty
    }
    TrashTest::TearDown();
  }
  static fs::path InTrash(const char* where, const std::string& ending) {
    return "/dev/shm/.Trash-" + std::to_string(::getuid()) + "/" + where + "/" + kName + ending;
  }
  static inline const std::string kName = "tricklet test " + std::to_string(::getpid());
  const fs::path thing = "/dev/shm/" + kName;
};

TEST_F(OtherVolume, HasATrashOfItsOwn) {
  EXPECT_TRUE(MoveToTrash(thing));
  EXPECT_EQ(ReadFile(InTrash("files", "")), "board");
  const std::string info = ReadFile(InTrash("info", ".trashinfo"));
  EXPECT_NE(info.find("\nPath=tricklet%20test%20"), std::string::npos) << info;
  EXPECT_FALSE(fs::exists(In("data")));
}

}  // namespace
}  // namespace tricklet::platform
