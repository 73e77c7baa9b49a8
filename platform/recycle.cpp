#include "platform/recycle.h"

#if defined(_WIN32) || defined(__APPLE__)
#include <QFile>
#else
#include "platform/trash.h"
#endif

namespace tricklet::platform {

bool Recycle(const std::filesystem::path& path) {
#if defined(_WIN32) || defined(__APPLE__)
  return QFile(path).moveToTrash();
#else
  return MoveToTrash(path);
#endif
}

}  // namespace tricklet::platform
