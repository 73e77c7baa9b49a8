// Whole files in, out and from place to place.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace tricklet {

/// The bytes of a regular file of at most `maxBytes`. Throws `Fault` when it cannot be read, is no
/// regular file or is larger.
std::string ReadWholeFile(const std::filesystem::path& path, std::size_t maxBytes);

/// Puts `data` in the place of the file `path`, whole or not at all: it is written beside it and
/// then renamed. The permissions stay those of the old file, which may be marked read-only. Throws
/// `Fault`, and then the old file is as it was.
void ReplaceWholeFile(const std::filesystem::path& path, std::string_view data);

/// Copies the regular file `from` to the place of `to`, whole or not at all, with its time of last
/// change. `goOn` is asked between pieces; when it says no, nothing was copied and false comes
/// back. Throws `Fault`, also when `from` is a link or no regular file; `to` is then as it was.
bool CopyWholeFile(const std::filesystem::path& from, const std::filesystem::path& to,
                   const std::function<bool()>& goOn);

/// A file (not a folder) of this path exists, or it cannot be told whether there is one.
bool FileExists(const std::filesystem::path& path);

/// Something of this path is there, if only a link to nothing; or it cannot be told whether there
/// is.
bool IsTaken(const std::filesystem::path& path);

/// The file exists and is marked read-only. Asked of its permissions, not by trying to open it: an
/// administrator may open anything, but the mark says what the owner wants.
bool IsReadOnly(const std::filesystem::path& path);

}  // namespace tricklet
