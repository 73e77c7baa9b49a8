#include "disk/file_stamp.h"

namespace tricklet {

namespace fs = std::filesystem;

FileStamp StampOf(const fs::path& path) {
  FileStamp stamp;
  stamp.path = path;
  const auto size = fs::file_size(path, stamp.failure);
  if (stamp.failure) return stamp;
  stamp.size = size;
  const auto written = fs::last_write_time(path, stamp.failure);
  if (!stamp.failure) stamp.written = written;
  return stamp;
}

}  // namespace tricklet
