#include "update/semantic_version.h"

#include <algorithm>

namespace tricklet {
namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kIdentifier =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-";
constexpr std::size_t kNumbers = 3;

std::vector<std::string> AtDots(std::string_view text) {
  std::vector<std::string> parts;
  for (;;) {
    const std::size_t dot = text.find('.');
    parts.emplace_back(text.substr(0, dot));
    if (dot == std::string_view::npos) return parts;
    text.remove_prefix(dot + 1);
  }
}

bool IsMadeOf(std::string_view text, std::string_view characters) {
  return !text.empty() && text.find_first_not_of(characters) == std::string_view::npos;
}

bool IsDigits(const std::string& text) {
  return IsMadeOf(text, kDigits);
}
bool IsNumber(const std::string& text) {
  return IsDigits(text) && (text.size() == 1 || text.front() != '0');
}
bool IsBuildIdentifier(const std::string& text) {
  return IsMadeOf(text, kIdentifier);
}
bool IsPreReleaseIdentifier(const std::string& text) {
  return IsDigits(text) ? IsNumber(text) : IsBuildIdentifier(text);
}

bool AllOf(const std::vector<std::string>& parts, bool (*is)(const std::string&)) {
  return std::all_of(parts.begin(), parts.end(), is);
}

/// Cuts `text` off at the first `mark` and returns what follows it; nothing when there is none.
std::optional<std::vector<std::string>> CutAt(std::string_view& text, char mark) {
  const std::size_t place = text.find(mark);
  if (place == std::string_view::npos) return std::nullopt;
  auto parts = AtDots(text.substr(place + 1));
  text = text.substr(0, place);
  return parts;
}

/// Of numbers without leading zeros the longer one is the greater, however long they are.
std::strong_ordering CompareNumbers(const std::string& a, const std::string& b) {
  return a.size() != b.size() ? a.size() <=> b.size() : a.compare(b) <=> 0;
}

std::strong_ordering CompareIdentifiers(const std::string& a, const std::string& b) {
  if (IsDigits(a) && IsDigits(b)) return CompareNumbers(a, b);
  if (IsDigits(a) != IsDigits(b)) return IsDigits(b) <=> IsDigits(a);  // numbers come first
  return a.compare(b) <=> 0;
}

std::strong_ordering CompareLists(const std::vector<std::string>& a,
                                  const std::vector<std::string>& b,
                                  std::strong_ordering (*compare)(const std::string&,
                                                                  const std::string&)) {
  return std::lexicographical_compare_three_way(a.begin(), a.end(), b.begin(), b.end(), compare);
}

}  // namespace

std::optional<SemanticVersion> ParseVersion(std::string_view text) {
  SemanticVersion version;
  if (const auto build = CutAt(text, '+'); build && !AllOf(*build, IsBuildIdentifier)) {
    return std::nullopt;
  }
  if (auto preRelease = CutAt(text, '-')) {
    if (!AllOf(*preRelease, IsPreReleaseIdentifier)) return std::nullopt;
    version.preRelease = std::move(*preRelease);
  }
  version.numbers = AtDots(text);
  if (version.numbers.size() == kNumbers - 1) version.numbers.emplace_back("0");
  if (version.numbers.size() != kNumbers || !AllOf(version.numbers, IsNumber)) return std::nullopt;
  return version;
}

std::strong_ordering ComparePrecedence(const SemanticVersion& a, const SemanticVersion& b) {
  const auto numbers = CompareLists(a.numbers, b.numbers, CompareNumbers);
  if (numbers != std::strong_ordering::equal) return numbers;
  if (a.preRelease.empty() || b.preRelease.empty()) {
    return a.preRelease.empty() <=> b.preRelease.empty();  // a release comes after its pre-releases
  }
  return CompareLists(a.preRelease, b.preRelease, CompareIdentifiers);
}

}  // namespace tricklet
