// The per-user settings store of the platform.
#pragma once

#include <memory>

#include "core/settings.h"

namespace tricklet::platform {

/// The store that the window and the command line share: what one writes the other reads. On
/// Windows the registry, elsewhere a file in the user's configuration folder.
std::unique_ptr<SettingsStore> MakeSettingsStore();

}  // namespace tricklet::platform
