// Holds the order of the system calls that the command line makes against what a disk promises:
// data stay when their file was flushed, names stay when their folder was flushed, and nothing else
// does.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

namespace fs = std::filesystem;

struct Call {
  std::string name;
  fs::path path;
  std::string other;
  bool done = false;
};

std::vector<Call> ReadCalls(const fs::path& file) {
  std::vector<Call> calls;
  std::ifstream lines(file);
  for (std::string line; std::getline(lines, line);) {
    std::istringstream columns(line);
    std::vector<std::string> words;
    for (std::string word; std::getline(columns, word, '\t');) words.push_back(word);
    calls.push_back({words.at(1), words.at(2), words.at(3), words.at(4)[0] != '-'});
  }
  return calls;
}

bool IsOwn(const fs::path& path) {
  return path.filename().string().starts_with(".tricklet-");
}

/// What would be lost if the power failed now.
class Disk {
 public:
  void Take(const Call& call) {
    if (!call.done || call.path.filename() == ".tricklet-lock") return;
    if (call.name == "write" || call.name == "ftruncate") dirty_.insert(call.path);
    if (call.name == "fsync") {
      dirty_.erase(call.path);
      unflushed_.erase(call.path);
    }
    if (call.name == "rename" || call.name == "link") TakeRename(call.path, call.other);
    if (call.name == "mkdir" && !IsOwn(call.path)) unflushed_.insert(call.path.parent_path());
    if (call.name == "unlink") TakeUnlink(call.path);
  }
  void Require(const std::string& when) const {
    for (const fs::path& file : dirty_) ADD_FAILURE() << file << " is not flushed " << when;
    for (const fs::path& folder : unflushed_) {
      ADD_FAILURE() << "the names in " << folder << " are not flushed " << when;
    }
  }

 private:
  void TakeRename(const fs::path& from, const fs::path& to) {
    EXPECT_FALSE(dirty_.contains(from)) << from << " is renamed to " << to << " before its flush";
    unflushed_.insert({from.parent_path(), to.parent_path()});
  }
  void TakeUnlink(const fs::path& path) {
    dirty_.erase(path);
    unflushed_.erase(path);
    if (!IsOwn(path)) unflushed_.insert(path.parent_path());
  }

  std::set<fs::path> dirty_;
  std::set<fs::path> unflushed_;
};

struct Command {
  const char* name;
  const char* arguments;
  const char* result;      ///< what must be there afterwards
  int libraryFlushes = 0;  ///< exactly so often; 0: not asked
};

void PrintTo(const Command& command, std::ostream* out) {
  *out << command.arguments;
}

class Durability : public testing::TestWithParam<Command> {
 protected:
  Durability() {
    fs::create_directories(folder.Path() / "root");
    fs::copy(TRICKLET_EXAMPLES, folder.Path() / "root", fs::copy_options::recursive);
    fs::copy(TRICKLET_EXAMPLES "/Sample", folder.Path() / "more");
    fs::copy(TRICKLET_EXAMPLES "/sample.pbn", folder.Path());
    EXPECT_EQ(Run("settings AutoMakeable False", ""), 0);
  }
  int Run(const std::string& arguments, const std::string& environment) const {
    const std::string here = PathText(folder.Path());
    const std::string line = "cd '" + here + "' && HOME='" + here + "' XDG_CONFIG_HOME='" + here +
                             "/config' XDG_DATA_HOME='" + here + "/data' " + environment +
                             " '" TRICKLET_CLI "' --root root --yes " + arguments + " >'" + here +
                             "/said' 2>&1";
    return std::system(line.c_str());
  }

  TempFolder folder;
};

TEST_P(Durability, WhatIsReportedAsDoneIsOnTheDisk) {
  const Command& command = GetParam();
  const fs::path calls = folder.Path() / "calls";
  // Without the path: a blank in it would end the name of what is preloaded.
  fs::create_symlink(TRICKLET_FILE_CALLS, folder.Path() / "watcher.so");
  const std::string watch = "LD_PRELOAD=./watcher.so TRICKLET_WATCH='" + PathText(folder.Path()) +
                            "' TRICKLET_CALLS='" + PathText(calls) + "'";
  ASSERT_EQ(Run(command.arguments, watch), 0) << ReadFile(folder.Path() / "said");
  EXPECT_TRUE(fs::exists(folder.Path() / command.result));
  Disk disk;
  int writes = 0;
  int flushes = 0;
  for (const Call& call : ReadCalls(calls)) {
    if (call.name == "say") disk.Require("before it says \"" + call.other + "\"");
    disk.Take(call);
    writes += call.name == "write" || call.name == "rename";
    flushes += call.name == "fsync" && call.path == folder.Path() / "root" / "Sample";
  }
  disk.Require("at the end");
  EXPECT_GT(writes, 0);
  if (command.libraryFlushes > 0) {
    EXPECT_EQ(flushes, command.libraryFlushes);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Commands, Durability,
    testing::Values(
        Command{"Import", "--library Sample import sample.pbn", "root/Sample/001.txt", 1},
        Command{"ImportAnew", "--library New import sample.pbn", "root/New/001.txt"},
        Command{"Generate", "--library Sample generate 1 9", "root/Sample/009.txt", 1},
        Command{"Edit", "--library Sample edit 1 rotate cw", "root/Sample/001.txt", 1},
        Command{"Auction", "--library Sample auction 1 1n ap", "root/Sample/001.txt", 1},
        Command{"Analyse", "--library Sample analyse 1 1 --again", "root/Sample/001.txt", 1},
        Command{"Export", "--library Sample export 1 1 out.pbn", "out.pbn"},
        Command{"LibraryCopy", "--library Sample library copy Copy", "root/Copy/001.txt"},
        Command{"LibraryExport", "--library Sample library export new/out", "new/out/Sample"},
        Command{"LibraryImport", "library import more", "root/more/001.txt"},
        Command{"LibraryMove", "library move elsewhere", "elsewhere/Sample/001.txt"},
        Command{"LibraryDelete", "--library Other library delete Sample",
                "data/Trash/files/Sample"},
        Command{"Setting", "settings PBNBids False", "config/Tricklet/QEN Bridge Scorer.conf"}),
    [](const auto& each) { return each.param.name; });

}  // namespace
}  // namespace tricklet::test
