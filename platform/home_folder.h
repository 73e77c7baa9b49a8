// The user's home folder, on Linux and its kin.
#pragma once

#include <filesystem>

namespace tricklet::platform {

/// An absolute path; empty when the system knows none.
std::filesystem::path HomeFolder();

/// What is said of anything that would lie there then.
inline constexpr const char* kNoHomeFolder = "There is no home folder";

}  // namespace tricklet::platform
