// The LIN data of the current library, kept in memory.
#pragma once

#include <filesystem>
#include <memory>
#include <system_error>

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
  /// What tells one file from another without reading it.
  struct Stamp {
    std::filesystem::path path;
    std::error_code failure;  ///< why it cannot be looked at, if it cannot
    std::uintmax_t size = 0;
    std::filesystem::file_time_type written;
    friend bool operator==(const Stamp&, const Stamp&) = default;
  };
  static Stamp StampOf(const Session& session);

  Stamp stamp_;
  std::shared_ptr<const LinFile> file_;  // none as long as nothing has been asked for
};

}  // namespace tricklet
