// The recycle bin of the platform.
#pragma once

#include <filesystem>

namespace tricklet::platform {

/// Sends a file or folder to the recycle bin. False when that could not be done; it is then still
/// in its place, never deleted for good.
bool Recycle(const std::filesystem::path& path);

}  // namespace tricklet::platform
