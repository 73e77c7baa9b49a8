#include "platform/home_folder.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace tricklet::platform {

std::filesystem::path HomeFolder() {
  const char* home = std::getenv("HOME");
  if (home == nullptr || *home == '\0') {
    const passwd* user = ::getpwuid(::getuid());
    home = user == nullptr ? nullptr : user->pw_dir;
  }
  return home != nullptr && *home == '/' ? home : std::filesystem::path();
}

}  // namespace tricklet::platform
