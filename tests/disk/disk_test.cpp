#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/fault.h"
#include "disk/file_io.h"
#include "disk/leftovers.h"
#include "disk/presence.h"
#include "disk/write_lock.h"
#include "tests/support/library_fixture.h"
#include "tests/support/scripted_host.h"

#ifndef _WIN32
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace tricklet {
namespace {

namespace fs = std::filesystem;
using test::ReadFile;
using test::WriteFile;

class DiskTest : public testing::Test {
 protected:
  fs::path In(const char* name) const { return folder.Path() / name; }
  std::unique_ptr<WriteLock> Take(int milliseconds = 0) {
    return WriteLock::Take(folder.Path(), std::chrono::milliseconds(milliseconds), holder);
  }

  test::TempFolder folder;
  test::ScriptedHost host;
  std::string holder;
};

TEST_F(DiskTest, OneWriterAtATime) {
  auto lock = Take();
  ASSERT_TRUE(lock);
  EXPECT_EQ(Take(30), nullptr);
  EXPECT_NE(holder.find("(process " + std::to_string(ProcessId()) + ")"), std::string::npos);
  int seen = 0;
  ForEachEntry(folder.Path(), [&seen](const auto&) { ++seen; });
  EXPECT_EQ(seen, 0) << "the lock is nobody's file";
  lock.reset();
  EXPECT_TRUE(fs::is_empty(folder.Path()));
  WriteFile(In(".tricklet-lock"), "of a program that was killed");
  EXPECT_TRUE(Take());
}

TEST_F(DiskTest, ALinkIsFollowedOrRefused) {
  WriteFile(In("real"), "old");
  fs::create_symlink("real", In("link"));
  fs::create_symlink("nothing", In("dangling"));
  ReplaceWholeFile(In("link"), "new");
  EXPECT_EQ(ReadFile(In("real")), "new");
  EXPECT_TRUE(fs::is_symlink(In("link")));
  EXPECT_THROW(ReplaceWholeFile(In("dangling"), "new"), Fault);
  EXPECT_TRUE(IsTaken(In("dangling")));
  EXPECT_FALSE(FileExists(In("dangling")));
}

TEST_F(DiskTest, WhatAKilledProgramHasLeftIsSwept) {
  constexpr const char* kGone = "2147483000";  // beyond the numbers that are given to processes
  const std::string ours = std::to_string(ProcessId());
  WriteFile(folder.Path() / (std::string(".tricklet-") + kGone + "-3.new"), "half");
  WriteFile(folder.Path() / (".tricklet-" + ours + "-0.new"), "on its way");
  WriteFile(folder.Path() / (std::string(".tricklet-copy-") + kGone + "-0") / "001.txt",
            "replaced");
  WriteFile(In(".tricklet-notes"), "somebody's");
  SweepLeftovers(host, folder.Path());
  EXPECT_EQ(test::Joined(host.recycled), std::string(".tricklet-copy-") + kGone + "-0");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), {}), 2);
}

#ifdef __linux__

// What cannot be seen: a folder without the right to search it, for anyone but the administrator.
TEST_F(DiskTest, WhatCannotBeSeenIsNotAbsent) {
  const fs::path loop = In("loop");
  fs::create_symlink("loop", loop);
  for (const auto& asked : {FileExists, FolderExists, IsReadOnly}) {
    EXPECT_THROW(asked(loop), Fault);
    EXPECT_FALSE(asked(In("nothing")));
    EXPECT_FALSE(asked(In("nothing") / "below"));
  }
  EXPECT_THROW(IsTaken(loop / "below"), Fault);
  EXPECT_THROW(ForEachEntry(loop, [](const auto&) {}), Fault);
}

#endif

}  // namespace
}  // namespace tricklet
