// An open file, by the calls of the operating system.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace tricklet {

/// Whether a link to a file is as good as the file.
enum class Links : std::uint8_t { Followed, Refused };

/// Every failure is thrown as a `Fault` that names the path.
class NativeFile {
 public:
  /// Opens a regular file to be read; throws when it is something else. Never waits, as opening a
  /// pipe that someone named like a board would.
  static NativeFile ToRead(const std::filesystem::path& path, Links links = Links::Followed);
  /// Makes a file to be written; nothing when the name is taken. Failures name it `shown`.
  static std::optional<NativeFile> New(const std::filesystem::path& path,
                                       std::filesystem::path shown);

  NativeFile(NativeFile&& other) noexcept;
  NativeFile& operator=(NativeFile&&) = delete;
  NativeFile(const NativeFile&) = delete;
  NativeFile& operator=(const NativeFile&) = delete;
  ~NativeFile();

  /// Its size in bytes when it was opened to be read.
  std::uintmax_t Size() const { return size_; }
  /// Reads up to `size` bytes; 0 at the end of the file.
  std::size_t Read(char* to, std::size_t size);
  void Write(std::string_view data);
  /// What was written is on the disk when this returns, and stays there if the power fails.
  void Flush();
  void Close();
  /// Closes the file if it is open; a failure does not matter.
  void Abandon();

 private:
  NativeFile(std::filesystem::path shown, int file) : path_(std::move(shown)), file_(file) {}
  /// Finds the size; throws when it is no regular file.
  void RequireRegular();

  std::filesystem::path path_;  // for messages
  int file_;
  std::uintmax_t size_ = 0;
};

/// Renames `from` to `to`, over a file that is there.
std::error_code RenameOver(const std::filesystem::path& from, const std::filesystem::path& to);

/// The names in the folder are on the disk when this returns: what was made, renamed or removed in
/// it stays so if the power fails. Throws `Fault`. A no-op where the system writes names through.
void FlushFolder(const std::filesystem::path& folder);

/// The number of this process.
int ProcessId();
/// A process of this number runs, or it cannot be told whether one does.
bool ProcessRuns(int id);

}  // namespace tricklet
