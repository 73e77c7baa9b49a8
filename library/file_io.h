// Whole files in and out: one read or one write call each.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace tricklet {

/// The bytes of a regular file of at most `maxBytes`. Throws `Fault` when it cannot be read, is no
/// regular file or is larger.
std::string ReadWholeFile(const std::filesystem::path& path, std::size_t maxBytes);

/// Puts `data` in the place of the file `path`, whole or not at all: it is written beside it and
/// then renamed. Throws `Fault`, and then the old file is as it was.
void ReplaceWholeFile(const std::filesystem::path& path, std::string_view data);

/// A file (not a folder) of this path exists.
bool FileExists(const std::filesystem::path& path);

}  // namespace tricklet
