// The LIN data of the current library, kept in memory.
#pragma once

#include <memory>

#include "disk/file_stamp.h"
#include "formats/results/lin_file.h"
#include "library/session.h"

namespace tricklet {

/// Reads "LIN.txt" when it is first asked for, and again when the library is another one or the
/// file has changed, by an import that has ended or by another program.
class LinData {
 public:
  /// The LIN data of the current library. A file that cannot be read is reported once and counts as
  /// empty. It never changes: other data is another file, so that work beside may keep this one.
  std::shared_ptr<const LinFile> Of(Session& session);

 private:
  FileStamp stamp_;
  std::shared_ptr<const LinFile> file_;  // none as long as nothing has been asked for
};

}  // namespace tricklet
