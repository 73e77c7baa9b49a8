// The type of a hand-record file.
#pragma once

#include <filesystem>
#include <string>

namespace tricklet {

/// The last three characters of the path, ASCII letters in lower case: "pbn", "dlm", "xml", "lin"
/// or whatever they are. Shorter when the path is.
std::string FileTypeOf(const std::filesystem::path& path);

}  // namespace tricklet
