// The trash of the desktops of Linux and its kin.
#pragma once

#include <filesystem>

namespace tricklet::platform {

/// Moves a file, a folder or a link into the trash of its volume, by the rules of "The Trash
/// specification", version 1.0, of freedesktop.org. It is renamed, never copied. False when that
/// could not be done; it is then still in its place, and nothing is left in the trash.
bool MoveToTrash(const std::filesystem::path& path);

}  // namespace tricklet::platform
