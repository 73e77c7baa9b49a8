#include "formats/results/lin_data.h"

#include "core/fault.h"

namespace tricklet {

std::shared_ptr<const LinFile> LinData::Of(Session& session) {
  const FileStamp stamp = StampOf(LinDataPath(session));
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
