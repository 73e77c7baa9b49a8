#include "library/recent_files.h"

#include <gtest/gtest.h>

#include "core/text.h"

namespace tricklet {
namespace {

TEST(RecentFiles, TheNewestComesFirstAndOnlyOnce) {
  std::string stored;
  for (const char* name : {"/a.pbn", "/b.pbn", "/c|d.pbn", "/a.pbn"}) {
    stored = WithRecentFile(stored, name);
  }
  const std::vector<std::filesystem::path> files = RecentFiles(stored);
  ASSERT_EQ(files.size(), 2U) << stored;
  EXPECT_EQ(files[0].filename(), "a.pbn");
  EXPECT_EQ(files[1].filename(), "b.pbn");
  for (int i = 0; i < 20; ++i) stored = WithRecentFile(stored, "/" + std::to_string(i));
  EXPECT_EQ(RecentFiles(stored).size(), kMostRecentFiles);
  EXPECT_EQ(RecentFiles(stored).back().filename(), "10");
  EXPECT_TRUE(RecentFiles("").empty());
  EXPECT_EQ(RecentFiles("||/x||").size(), 1U) << "whatever the settings hold";
}

}  // namespace
}  // namespace tricklet
