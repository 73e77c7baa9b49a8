#include "formats/results/lin_data.h"

#include "core/fault.h"

namespace tricklet {

namespace fs = std::filesystem;

LinData::Stamp LinData::StampOf(const Session& session) {
  Stamp stamp;
  stamp.path = LinDataPath(session);
  const auto size = fs::file_size(stamp.path, stamp.failure);
  if (stamp.failure) return stamp;
  stamp.size = size;
  const auto written = fs::last_write_time(stamp.path, stamp.failure);
  if (!stamp.failure) stamp.written = written;
  return stamp;
}

std::shared_ptr<const LinFile> LinData::Of(Session& session) {
  const Stamp stamp = StampOf(session);
  if (file_ && stamp == stamp_) return file_;
  stamp_ = stamp;
  file_ = std::make_shared<const LinFile>();
  try {
    file_ = std::make_shared<const LinFile>(LoadLinData(session));
  } catch (const Fault& fault) {
    ErrorReport(session.host, fault);
  }
  return file_;
}

}  // namespace tricklet
