// The LIN data of the current library, kept in memory.
#pragma once

#include <filesystem>

#include "formats/results/lin_file.h"
#include "library/session.h"

namespace tricklet {

/// Reads "LIN.txt" when it is first asked for, and again when the library is another one or the
/// file is: an import that has ended is noticed by that, and so is another program's.
class LinData {
 public:
  /// That of the current library, until the next call. A file that cannot be read is reported once
  /// and is empty.
  const LinFile& Of(Session& session);

  /// It has been asked for.
  bool Loaded() const { return loaded_; }
  /// How often it has been read.
  int Version() const { return version_; }

 private:
  /// What tells one file from another without reading it.
  struct Stamp {
    std::filesystem::path path;
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
