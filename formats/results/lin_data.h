// The LIN data of the current library, kept in memory.
#pragma once

#include <filesystem>
#include <system_error>

#include "formats/results/lin_file.h"
#include "library/session.h"

namespace tricklet {

/// Reads "LIN.txt" when it is first asked for, and again when the library is another one or the
/// file has changed, by an import that has ended or by another program.
class LinData {
 public:
  /// The LIN data of the current library, valid until the next call. A file that cannot be read is
  /// reported once and counts as empty.
  const LinFile& Of(Session& session);

  /// How often a file has been read: when the number has changed, so may the data have.
  int Version() const { return version_; }

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
  LinFile file_;
  bool loaded_ = false;
  int version_ = 0;
};

}  // namespace tricklet
