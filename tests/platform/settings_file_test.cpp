#include "platform/settings_file.h"

#include <csignal>
#include <functional>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "tests/support/library_fixture.h"

namespace tricklet::platform {
namespace {

namespace fs = std::filesystem;
using test::ReadFile;
using test::WriteFile;

class SettingsFileTest : public testing::Test {
 protected:
  /// Stores one setting as a program of its own would.
  bool Set(const std::string& key, const std::string& value) const {
    const auto store = OpenSettingsFile(file);
    store->Write("Tricklet", key, value);
    return store->Sync();
  }
  std::string Get(const std::string& key) const {
    return OpenSettingsFile(file)->Read("Tricklet", key).value_or("none");
  }
  std::ptrdiff_t Files() const { return std::distance(fs::directory_iterator(home), {}); }

  test::TempFolder folder;
  const fs::path home = folder.Path() / "config";
  const fs::path file = home / "A name.conf";
};

TEST_F(SettingsFileTest, KeepsWhatItDoesNotChange) {
  WriteFile(file, "[Other]\nlist=1, two\n\n[Tricklet]\nEditMethod=2\nName=\"a;b\"\nSize=\\x2660\n");
  fs::permissions(file, fs::perms::owner_all);
  EXPECT_EQ(Get("Name"), "a;b");
  EXPECT_TRUE(Set("EditMethod", "3"));
  EXPECT_EQ(ReadFile(file),
            "[Other]\nlist=1, two\n\n[Tricklet]\nEditMethod=3\nName=\"a;b\"\nSize=\u2660\n");
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_all);
  EXPECT_EQ(Files(), 1);
}

TEST_F(SettingsFileTest, BeginsAFileForTheUserAlone) {
  const auto store = OpenSettingsFile(file);
  EXPECT_EQ(store->Failure(), "");
  store->Write("macro", "filelocation", "/a \u00fc,\"b\"/");
  EXPECT_FALSE(fs::exists(home)) << "nothing is written before it is asked for";
  EXPECT_TRUE(store->Sync());
  EXPECT_EQ(OpenSettingsFile(file)->Read("macro", "filelocation"), "/a \u00fc,\"b\"/");
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(SettingsFileTest, ChangesOfTwoProgramsAreBothKept) {
  constexpr int kChanges = 12;
  const auto change = [this](const std::string& which) {
    const auto store = OpenSettingsFile(file);
    bool stored = true;
    for (int n = 0; n < kChanges; ++n) {
      store->Write("Tricklet", which + std::to_string(n), which);
      stored = store->Sync() && stored;
    }
    return stored;
  };
  const pid_t other = ::fork();
  if (other == 0) ::_exit(change("a") ? 0 : 1);
  EXPECT_TRUE(change("b"));
  int status = -1;
  ::waitpid(other, &status, 0);
  EXPECT_EQ(status, 0);
  const auto all = OpenSettingsFile(file);
  for (int n = 0; n < kChanges; ++n) {
    for (const std::string which : {"a", "b"}) {
      EXPECT_EQ(all->Read("Tricklet", which + std::to_string(n)), which) << n;
    }
  }
  EXPECT_EQ(Files(), 1);
}

TEST_F(SettingsFileTest, WhatCannotBeReadIsNeverReplaced) {
  const std::string garbage =
      "\x7f"
      "ELF\x01\n[Tricklet\nEditMethod\n";
  const std::vector<std::function<void()>> unreadable{
      [&] { WriteFile(file, garbage); },
      [&] { WriteFile(file, std::string((1U << 20U) + 1, '\n')); },
      [&] { WriteFile(file, std::string(300, '\0')); },
      [&] { fs::create_directories(file); },
      [&] { ::mkfifo(file.c_str(), 0600); },
      [&] { fs::create_symlink("nothing", file); },
  };
  fs::create_directories(home);
  for (const auto& make : unreadable) {
    make();
    const auto before = fs::symlink_status(file).type();
    const std::string data = fs::is_regular_file(file) ? ReadFile(file) : "";
    const auto store = OpenSettingsFile(file);
    EXPECT_NE(store->Failure().find(PathText(file)), std::string::npos) << store->Failure();
    store->Write("Tricklet", "EditMethod", "2");
    EXPECT_FALSE(store->Sync());
    EXPECT_EQ(fs::symlink_status(file).type(), before);
    EXPECT_EQ(fs::is_regular_file(file) ? ReadFile(file) : "", data);
    EXPECT_EQ(Files(), 1);
    fs::remove(file);
  }
  ASSERT_TRUE(Set("EditMethod", "2"));
  const auto store = OpenSettingsFile(file);
  store->Write("Tricklet", "EditMethod", "3");
  WriteFile(file, garbage);
  EXPECT_FALSE(store->Sync()) << "it was readable at the start";
  EXPECT_NE(store->SyncFailure().find(PathText(file)), std::string::npos);
  EXPECT_EQ(ReadFile(file), garbage);
}

TEST_F(SettingsFileTest, AFullDiskCostsNothing) {
  ASSERT_TRUE(Set("EditMethod", "2"));
  const std::string before = ReadFile(file);
  const auto store = OpenSettingsFile(file);
  store->Write("Tricklet", "Name", std::string(5000, 'x'));
  rlimit limit{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
  rlimit small = limit;
  small.rlim_cur = 4096;
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  ::setrlimit(RLIMIT_FSIZE, &small);
  const bool stored = store->Sync();
  ::setrlimit(RLIMIT_FSIZE, &limit);
  std::signal(SIGXFSZ, handler);
  EXPECT_FALSE(stored);
  EXPECT_NE(store->SyncFailure(), "");
  EXPECT_EQ(ReadFile(file), before);
  EXPECT_EQ(Files(), 1);
  EXPECT_TRUE(store->Sync() && store->SyncFailure().empty()) << "there is room again";
  EXPECT_EQ(Get("Name").size(), 5000U);
}

}  // namespace
}  // namespace tricklet::platform
