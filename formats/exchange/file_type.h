// The type of a hand-record file.
#pragma once

#include <filesystem>
#include <string>

namespace tricklet {

/// The last three characters of the path in lower case: "pbn", "dlm", "xml", "lin" or another.
std::string FileTypeOf(const std::filesystem::path& path);

}  // namespace tricklet
