#include "disk/presence.h"

#include <source_location>
#include <system_error>

#include "core/fault.h"
#include "core/text.h"
#include "disk/leftovers.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

void ThrowIf(std::error_code failure, const fs::path& path,
             std::source_location where = std::source_location::current()) {
  if (failure) throw Fault::OfFile(failure, PathText(path), where);
}

/// `status` as the library gives it: absent is a kind of its own, and no failure.
void RequireKnown(const fs::file_status& status, std::error_code failure, const fs::path& path) {
  if (status.type() == fs::file_type::none) ThrowIf(failure, path);
}

fs::file_status StatusOf(const fs::path& path) {
  std::error_code failure;
  const fs::file_status status = fs::status(path, failure);
  RequireKnown(status, failure, path);
  return status;
}

}  // namespace

bool FileExists(const fs::path& path) {
  const fs::file_status status = StatusOf(path);
  return fs::exists(status) && !fs::is_directory(status);
}

bool FolderExists(const fs::path& path) {
  return fs::is_directory(StatusOf(path));
}

bool IsTaken(const fs::path& path) {
  std::error_code failure;
  const fs::file_status status = fs::symlink_status(path, failure);
  RequireKnown(status, failure, path);
  return fs::exists(status);
}

bool IsReadOnly(const fs::path& path) {
  const fs::file_status status = StatusOf(path);
  return fs::exists(status) && (status.permissions() & fs::perms::owner_write) == fs::perms::none;
}

void ForEachEntry(const fs::path& folder,
                  const std::function<void(const fs::directory_entry&)>& take) {
  std::error_code failure;
  fs::directory_iterator entry(folder, failure);
  for (const fs::directory_iterator end; !failure && entry != end; entry.increment(failure)) {
    if (!IsOwnName(PathText(entry->path().filename()))) take(*entry);
  }
  ThrowIf(failure, folder);
}

}  // namespace tricklet
