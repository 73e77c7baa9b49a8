#include "platform/recycle.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace tricklet::platform {

bool Recycle(const std::filesystem::path& path) {
  // The bin lies in the folder for the user's data, which a new account may not have yet.
  QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
  return QFile(path).moveToTrash();
}

}  // namespace tricklet::platform
