#include "update/semantic_version.h"

#include <gtest/gtest.h>

#include "tests/support/words.h"

namespace tricklet {
namespace {

/// Each is older than the next. From "1.0.0-alpha" to "1.0.0" the order is the example
/// of semver.org, section 11.
constexpr const char* kAscending =
    "0.0.9 0.1.0 0.10.0 1.0.0-0 1.0.0-9 1.0.0-10 1.0.0-99999999999999999999 "
    "1.0.0-100000000000000000000 1.0.0-- 1.0.0-alpha 1.0.0-alpha.1 1.0.0-alpha.beta "
    "1.0.0-beta 1.0.0-beta.2 1.0.0-beta.11 1.0.0-rc.1 1.0.0 1.2.9 1.3.0-x 1.3 2.0.0 "
    "18446744073709551616.0.0 99999999999999999999.0.0 100000000000000000000.0.0";

TEST(SemanticVersion, HasTheOrderOfSectionEleven) {
  const auto order = [](const std::string& a, const std::string& b) {
    return ComparePrecedence(ParseVersion(a).value(), ParseVersion(b).value());
  };
  const std::vector<std::string> versions = test::Words(kAscending);
  for (std::size_t a = 0; a < versions.size(); ++a) {
    for (std::size_t b = 0; b < versions.size(); ++b) {
      EXPECT_EQ(order(versions[a], versions[b]), a <=> b) << versions[a] << " and " << versions[b];
    }
  }
  for (const auto& [a, b] :
       {std::pair("1.3", "1.3.0"), {"1.0.0+2", "1.0.0"}, {"1.0.0-a+b.01", "1.0.0-a+c-d"}}) {
    EXPECT_EQ(order(a, b), std::strong_ordering::equal) << a;
  }
}

TEST(SemanticVersion, IsNothingElse) {
  for (const char* text :
       {"",       "1",         "1.2.3.4",    "v1.2.3", "1.2.x",      "1..3",         "1.2.3.",
        "-1.2.3", "1.02.3",    "01.2.3",     "1.2.3-", "1.2.3-a..b", "1.2.3-01",     "1.2.3-a_b",
        "1.2.3+", "1.2.3+a+b", "1.2.3+a..b", " 1.2.3", "1.2.3 ",     "1.2.3-\u00e9", "1.2.+3",
        "1e9.0.0"}) {
    EXPECT_FALSE(ParseVersion(text)) << text;
  }
}

}  // namespace
}  // namespace tricklet
