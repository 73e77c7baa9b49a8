// The file of a shared library, looked at before the system loads it.
#pragma once

#include <filesystem>
#include <string>

namespace tricklet {

/// Why the file must not be loaded, with its name: it cannot be read, is no regular file (a pipe
/// would hang the program) or has been cut off (where that would end the program). Empty when
/// nothing speaks against it; the system may refuse it all the same.
std::string LibraryFileFlaw(const std::filesystem::path& path);

}  // namespace tricklet
