// The files that were imported last.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tricklet {

inline constexpr std::size_t kMostRecentFiles = 10;

/// The files of the setting `recentFiles`, the newest first.
std::vector<std::filesystem::path> RecentFiles(std::string_view stored);

/// The setting with `file` as its newest: made absolute, once in the list, which keeps
/// `kMostRecentFiles`. A file whose path has the character that separates them is left out.
std::string WithRecentFile(std::string_view stored, const std::filesystem::path& file);

}  // namespace tricklet
