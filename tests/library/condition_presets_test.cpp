#include "library/condition_presets.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "library/library_names.h"
#include "tests/support/library_fixture.h"

namespace tricklet::test {
namespace {

class PresetsTest : public LibraryTest {};

TEST_F(PresetsTest, AreKeptBesideTheLibrariesAndAreNone) {
  EXPECT_TRUE(PresetNames(session).empty());
  EXPECT_TRUE(StorePreset(session, " Weak two ", "hcp(south) < 11"));
  EXPECT_TRUE(StorePreset(session, "acol", "1"));
  EXPECT_EQ(PresetNames(session), (std::vector<std::string>{"acol", "Weak two"}));
  EXPECT_EQ(LoadPreset(session, "Weak two"), "hcp(south) < 11");
  const auto libraries = FoldersOf(session.FileLocation());
  EXPECT_EQ(std::count(libraries.begin(), libraries.end(), ".conditions"), 0);
}

TEST_F(PresetsTest, AreReplacedOnlyWhenThatIsWanted) {
  ASSERT_TRUE(StorePreset(session, "mine", "1"));
  host.ExpectAskWith("There is a preset named mine", Answer::No);
  EXPECT_FALSE(StorePreset(session, "mine", "0"));
  EXPECT_EQ(LoadPreset(session, "mine"), "1");
  host.ExpectTellWith("A preset cannot be named ../up");
  EXPECT_FALSE(StorePreset(session, "../up", "0"));
}

}  // namespace
}  // namespace tricklet::test
