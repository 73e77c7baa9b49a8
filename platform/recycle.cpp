#include "platform/recycle.h"

#include <QFile>

namespace tricklet::platform {

bool Recycle(const std::filesystem::path& path) {
  return QFile(path).moveToTrash();
}

}  // namespace tricklet::platform
