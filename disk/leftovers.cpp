#include "disk/leftovers.h"

#include <atomic>
#include <optional>
#include <system_error>
#include <vector>

#include "core/text.h"
#include "disk/native_file.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kOwn = ".tricklet-";
constexpr std::string_view kFolder = ".tricklet-copy-";
constexpr std::string_view kKept = ".tricklet-kept-";
constexpr std::string_view kDraft = ".tricklet-draft-";
constexpr std::string_view kFileEnding = ".new";

std::string NumberedName(std::string_view begin) {
  static std::atomic<unsigned> next{0};
  return std::string(begin) + std::to_string(ProcessId()) + "-" + std::to_string(next++);
}

/// The process number with which `rest` begins.
std::optional<int> ProcessIn(std::string_view rest) {
  const std::size_t dash = rest.find('-');
  if (dash == std::string_view::npos) return std::nullopt;
  return NumberFromText(rest.substr(0, dash));
}

/// The process that made what has this name; nothing when the name does not say.
std::optional<int> MakerOf(std::string_view name) {
  const auto begin = name.starts_with(kFolder) ? kFolder : name.starts_with(kKept) ? kKept : kOwn;
  if (begin == kOwn && !(name.starts_with(kOwn) && name.ends_with(kFileEnding)))
    return std::nullopt;
  return ProcessIn(name.substr(begin.size()));
}

/// What processes that are gone have left in the folder.
std::vector<fs::directory_entry> LeftIn(const fs::path& folder) {
  std::vector<fs::directory_entry> left;
  std::error_code failure;
  fs::directory_iterator entry(folder, failure);
  for (const fs::directory_iterator end; !failure && entry != end; entry.increment(failure)) {
    const auto maker = MakerOf(PathText(entry->path().filename()));
    if (maker && *maker > 0 && !ProcessRuns(*maker)) left.push_back(*entry);
  }
  return left;
}

bool IsKept(const fs::directory_entry& left) {
  return PathText(left.path().filename()).starts_with(kKept);
}

/// Folders and links stay; so does what cannot be removed.
void RemoveFile(const fs::directory_entry& left) {
  std::error_code failure;
  if (fs::is_regular_file(left.symlink_status(failure))) fs::remove(left.path(), failure);
}

}  // namespace

std::string NewFileName() {
  return NumberedName(kOwn) + std::string(kFileEnding);
}

std::string NewFolderName() {
  return NumberedName(kFolder);
}

std::string NewKeptName() {
  return NumberedName(kKept);
}

std::string NewDraftName() {
  return NumberedName(kDraft);
}

std::vector<DraftFolder> DraftFoldersIn(const fs::path& folder) {
  std::vector<DraftFolder> drafts;
  std::error_code failure;
  fs::directory_iterator entry(folder, failure);
  for (const fs::directory_iterator end; !failure && entry != end; entry.increment(failure)) {
    const std::string name = PathText(entry->path().filename());
    std::error_code unseen;
    if (!name.starts_with(kDraft) || !fs::is_directory(entry->symlink_status(unseen))) continue;
    const auto process = ProcessIn(std::string_view(name).substr(kDraft.size()));
    drafts.push_back({entry->path(), process.value_or(0)});
  }
  return drafts;
}

bool IsOwnName(std::string_view name) {
  return name.starts_with(kOwn);
}

std::vector<fs::path> LeftKept(const fs::path& folder) {
  std::vector<fs::path> kept;
  for (const fs::directory_entry& left : LeftIn(folder)) {
    std::error_code failure;
    if (IsKept(left) && fs::is_directory(left.symlink_status(failure))) kept.push_back(left.path());
  }
  return kept;
}

void SweepFiles(const fs::path& folder) {
  for (const fs::directory_entry& left : LeftIn(folder)) RemoveFile(left);
}

void SweepLeftovers(Host& host, const fs::path& folder) {
  for (const fs::directory_entry& left : LeftIn(folder)) {
    std::error_code failure;
    RemoveFile(left);
    if (!IsKept(left) && fs::is_directory(left.symlink_status(failure))) host.Recycle(left.path());
  }
}

}  // namespace tricklet
