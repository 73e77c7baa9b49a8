// Versions and their order, by "Semantic Versioning 2.0.0" (https://semver.org/spec/v2.0.0.html).
#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tricklet {

/// A version without its build data, which has no part in the order.
struct SemanticVersion {
  std::vector<std::string> numbers;     ///< major, minor and patch: decimal digits, of any length
  std::vector<std::string> preRelease;  ///< its identifiers; none for a release
};

/// "1.4.0", "1.4.0-rc.2", "1.4.0+build7"; "1.4" stands for "1.4.0". Nothing for any other text.
std::optional<SemanticVersion> ParseVersion(std::string_view text);

/// Which of the two has precedence (section 11): greater when `a` is the newer one.
std::strong_ordering ComparePrecedence(const SemanticVersion& a, const SemanticVersion& b);

}  // namespace tricklet
