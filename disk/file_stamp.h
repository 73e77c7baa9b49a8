// What tells one state of a file from another without reading it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <system_error>

namespace tricklet {

struct FileStamp {
  std::filesystem::path path;
  std::error_code failure;  ///< why it cannot be looked at, if it cannot
  std::uintmax_t size = 0;  ///< bytes
  std::filesystem::file_time_type written;
  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// Throws nothing: a file that is not there, too, has a stamp.
FileStamp StampOf(const std::filesystem::path& path);

}  // namespace tricklet
