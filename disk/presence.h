// What there is at a path. Only "no such file" counts as nothing there: every other error is thrown
// as a `Fault`, so that what cannot be seen is never taken for absent.
#pragma once

#include <filesystem>
#include <functional>

namespace tricklet {

/// A file (not a folder) of this path exists; through a link, what it leads to.
bool FileExists(const std::filesystem::path& path);

/// A folder of this path exists; through a link, what it leads to.
bool FolderExists(const std::filesystem::path& path);

/// Something of this path is there, if only a link to nothing.
bool IsTaken(const std::filesystem::path& path);

/// The file exists and is marked read-only. Asked of its permissions, not by trying to open it: an
/// administrator may open anything, but the mark says what the owner wants.
bool IsReadOnly(const std::filesystem::path& path);

/// Calls `take` for each entry of the folder, in no order; entries of the program's own that are
/// not complete are passed over.
void ForEachEntry(const std::filesystem::path& folder,
                  const std::function<void(const std::filesystem::directory_entry&)>& take);

}  // namespace tricklet
