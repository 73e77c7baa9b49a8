// Signals of the system that must not end the program.
#pragma once

#include <atomic>

namespace tricklet::platform {

/// A write beyond a file-size limit comes back as an error instead of ending the program.
void IgnoreFileSizeSignal();

/// From now on Ctrl-C sets the flag that is returned, instead of ending the program.
const std::atomic<bool>& CatchInterrupt();

}  // namespace tricklet::platform
