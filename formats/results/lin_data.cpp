#include "formats/results/lin_data.h"

#include <system_error>

#include "core/fault.h"

namespace tricklet {

namespace fs = std::filesystem;

LinData::Stamp LinData::StampOf(const Session& session) {
  Stamp stamp;
  stamp.path = LinDataPath(session);
  std::error_code failure;
  const auto size = fs::file_size(stamp.path, failure);
  if (failure) return stamp;
  stamp.size = size;
  stamp.written = fs::last_write_time(stamp.path, failure);
  return stamp;
}

const LinFile& LinData::Of(Session& session) {
  const Stamp stamp = StampOf(session);
  if (loaded_ && stamp == stamp_) return file_;
  loaded_ = true;
  stamp_ = stamp;
  ++version_;
  file_ = LinFile();
  try {
    file_ = LoadLinData(session);
  } catch (const Fault& fault) {
    ErrorReport(session.host, fault);
  }
  return file_;
}

}  // namespace tricklet
