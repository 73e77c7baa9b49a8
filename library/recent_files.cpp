#include "library/recent_files.h"

#include <algorithm>

#include "core/text.h"

namespace tricklet {
namespace {

constexpr char kBetween = '|';  // no file's name has it on Windows, and hardly any elsewhere

}  // namespace

std::vector<std::filesystem::path> RecentFiles(std::string_view stored) {
  std::vector<std::filesystem::path> files;
  while (!stored.empty() && files.size() < kMostRecentFiles) {
    const std::size_t end = std::min(stored.find(kBetween), stored.size());
    if (end > 0) files.push_back(PathFromText(stored.substr(0, end)));
    stored.remove_prefix(std::min(end + 1, stored.size()));
  }
  return files;
}

std::string WithRecentFile(std::string_view stored, const std::filesystem::path& file) {
  std::error_code unknown;
  const std::filesystem::path whole = std::filesystem::absolute(file, unknown);
  std::string text = PathText(unknown ? file : whole);
  if (text.find(kBetween) != std::string::npos) return std::string(stored);
  const std::string newest = text;
  std::size_t count = 1;
  for (const std::filesystem::path& old : RecentFiles(stored)) {
    if (PathText(old) == newest || count == kMostRecentFiles) continue;
    text += kBetween + PathText(old);
    ++count;
  }
  return text;
}

}  // namespace tricklet
