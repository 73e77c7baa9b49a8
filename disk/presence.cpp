#include "disk/presence.h"

#include <memory>
#include <source_location>
#include <string_view>
#include <system_error>

#ifdef _WIN32
#include <windows.h>
#endif

#include "core/fault.h"
#include "core/text.h"
#include "disk/leftovers.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

#ifdef _WIN32
std::error_code LastError() {
  return {static_cast<int>(GetLastError()), std::system_category()};
}
#endif

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

using Take = std::function<void(const fs::directory_entry&)>;

#ifdef _WIN32

/// The C++ library of mingw lists nothing, and names no error, where a path has more than 260
/// characters.
std::error_code ListFolder(const fs::path& folder, const Take& take) {
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileW((folder / L"*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return LastError();
  const std::unique_ptr<void, decltype(&FindClose)> closing(search, &FindClose);
  do {
    const std::wstring_view name(&found.cFileName[0]);
    std::error_code ignored;  // whoever asks for the entry's status hears of it
    if (name != L"." && name != L"..") take(fs::directory_entry(folder / name, ignored));
  } while (FindNextFileW(search, &found) != 0);
  return GetLastError() == ERROR_NO_MORE_FILES ? std::error_code() : LastError();
}

#else

std::error_code ListFolder(const fs::path& folder, const Take& take) {
  std::error_code failure;
  fs::directory_iterator entry(folder, failure);
  for (const fs::directory_iterator end; !failure && entry != end; entry.increment(failure)) {
    take(*entry);
  }
  return failure;
}

#endif

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
  const auto failure = ListFolder(folder, [&take](const fs::directory_entry& entry) {
    if (!IsOwnName(PathText(entry.path().filename()))) take(entry);
  });
  ThrowIf(failure, folder);
}

}  // namespace tricklet
