// Whole files in, out and from place to place. What has been written when a procedure returns is
// still there after the power has failed.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <string_view>

#include "disk/native_file.h"

namespace tricklet {

/// The bytes of a regular file of at most `maxBytes`. Throws `Fault` when it cannot be read, is no
/// regular file or is larger.
std::string ReadWholeFile(const std::filesystem::path& path, std::size_t maxBytes);

/// Folders in which a run has put files. The contents of those files are on the disk; their names
/// are when `Flush` has returned, which takes one flush for each folder instead of one for each
/// file.
class UnflushedFolders {
 public:
  void Add(std::filesystem::path folder) { folders_.insert(std::move(folder)); }
  /// Throws `Fault`; what could not be flushed stays to be flushed.
  void Flush();

 private:
  std::set<std::filesystem::path> folders_;
};

/// A file that is written beside the one whose place it is to take, and removed again when it has
/// not taken it. A link is followed: the file that it leads to is replaced.
class Replacement {
 public:
  /// Throws `Fault` when no file can be made there, or when `path` is a link to nothing.
  explicit Replacement(const std::filesystem::path& path);
  ~Replacement();
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  NativeFile& File() { return file_; }
  const std::filesystem::path& Beside() const { return beside_; }
  /// Brings what has been written to the disk. Nothing may be written afterwards.
  void Complete();
  /// Takes the place; the permissions stay those of the old file, which may be marked read-only.
  /// Throws `Fault`, and then the old file is as it was.
  void PutInPlace(UnflushedFolders& unflushed);

 private:
  std::filesystem::path path_;
  std::filesystem::path beside_;
  NativeFile file_;
  bool placed_ = false;
};

/// Puts `data` in the place of the file `path`, whole or not at all. Throws `Fault`, and then the
/// old file is as it was; unless it is the folder that cannot be flushed, and then the new one is
/// there but may not outlast a power cut.
void ReplaceWholeFile(const std::filesystem::path& path, std::string_view data);
/// One file of a run, which has to flush the folders at its end.
void ReplaceWholeFile(const std::filesystem::path& path, std::string_view data,
                      UnflushedFolders& unflushed);

/// Makes the folder and what is missing above it, so that they outlast a power cut. Throws `Fault`.
void MakeFolders(const std::filesystem::path& folder);

/// Copies the regular file `from` to the place of `to`, whole or not at all, with its time of last
/// change. `goOn` is asked between pieces; when it says no, nothing was copied and false comes
/// back. Throws `Fault`, also when `from` is a link or no regular file; `to` is then as it was.
bool CopyWholeFile(const std::filesystem::path& from, const std::filesystem::path& to,
                   UnflushedFolders& unflushed, const std::function<bool()>& goOn);

}  // namespace tricklet
