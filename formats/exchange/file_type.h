// The type of a hand-record file.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tricklet {

/// The last three characters of the path, ASCII letters in lower case: "pbn", "dlm", "xml", "lin"
/// or whatever they are. Shorter when the path is.
std::string FileTypeOf(const std::filesystem::path& path);

/// The type of the hand records in `bytes`: "pbn", "dlm", "xml" or "lin". `type`, that of the
/// file's name, counts unless the content is plainly of another type. Empty when it is of none.
std::string TypeOfRecords(const std::string& type, std::string_view bytes);

}  // namespace tricklet
