#include "platform/signals.h"

#include <csignal>

namespace tricklet::platform {
namespace {

std::atomic<bool> interrupted{false};

void OnInterrupt(int /*signal*/) {
  interrupted.store(true);
}

}  // namespace

void IgnoreFileSizeSignal() {
#ifdef SIGXFSZ
  std::signal(SIGXFSZ, SIG_IGN);
#endif
}

const std::atomic<bool>& CatchInterrupt() {
  static_assert(std::atomic<bool>::is_always_lock_free, "only then may a signal handler set it");
  std::signal(SIGINT, OnInterrupt);
  return interrupted;
}

}  // namespace tricklet::platform
