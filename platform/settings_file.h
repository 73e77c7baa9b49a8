// Settings in a file, on Linux and its kin.
#pragma once

#include <filesystem>
#include <memory>

#include "core/settings.h"

namespace tricklet::platform {

/// The settings in the file `path`, in the syntax of QSettings; the file may not exist yet. It is
/// read once; an empty `path` is one that cannot be read. `Sync` brings the keys that were changed,
/// and no others, into the file as it then is: whole or not at all, and by one program at a time. A
/// file that cannot be read is never replaced.
std::unique_ptr<SettingsStore> OpenSettingsFile(const std::filesystem::path& path);

}  // namespace tricklet::platform
