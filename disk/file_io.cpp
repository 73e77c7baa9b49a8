#include "disk/file_io.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <system_error>

#ifdef _WIN32
#include <io.h>
#include <process.h>
#else
#include <unistd.h>
#endif

#include "core/fault.h"
#include "core/text.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

#ifdef _WIN32
using StatRecord = struct _stat64;
constexpr int kNotThroughLinks = 0;
int OpenToRead(const fs::path& path, int more = 0) {
  return _wopen(path.c_str(), _O_RDONLY | _O_BINARY | more);
}
int OpenNew(const fs::path& path) {
  return _wopen(path.c_str(), _O_WRONLY | _O_BINARY | _O_CREAT | _O_EXCL, _S_IREAD | _S_IWRITE);
}
int StatOf(int file, StatRecord& record) {
  return _fstat64(file, &record);
}
bool IsRegular(const StatRecord& record) {
  return (record.st_mode & _S_IFREG) != 0;
}
long long ReadSome(int file, char* to, std::size_t size) {
  return _read(file, to, static_cast<unsigned>(size));
}
long long WriteSome(int file, const char* from, std::size_t size) {
  return _write(file, from, static_cast<unsigned>(size));
}
int Close(int file) {
  return _close(file);
}
int ProcessId() {
  return _getpid();
}
#else
using StatRecord = struct stat;
constexpr int kNotThroughLinks = O_NOFOLLOW;
int OpenToRead(const fs::path& path, int more = 0) {
  // Without O_NONBLOCK, opening a pipe that someone named like a board would wait for ever.
  return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | more);
}
int OpenNew(const fs::path& path) {
  constexpr mode_t kMode = 0666;  // less the user's mask
  return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kMode);
}
int StatOf(int file, StatRecord& record) {
  return ::fstat(file, &record);
}
bool IsRegular(const StatRecord& record) {
  return S_ISREG(record.st_mode);
}
long long ReadSome(int file, char* to, std::size_t size) {
  return ::read(file, to, size);
}
long long WriteSome(int file, const char* from, std::size_t size) {
  return ::write(file, from, size);
}
int Close(int file) {
  return ::close(file);
}
int ProcessId() {
  return ::getpid();
}
#endif

/// The largest piece that every platform's calls take.
constexpr std::size_t kLargestPiece = std::size_t{1} << 30U;
/// The piece in which files are copied: small enough to cancel between two of them.
constexpr std::size_t kCopyPiece = std::size_t{1} << 20U;

std::error_code LastError() {
  return {errno, std::generic_category()};
}

class FileHandle {
 public:
  explicit FileHandle(int file) : file_(file) {}
  ~FileHandle() {
    if (file_ >= 0) Close(file_);
  }
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  int Get() const { return file_; }
  bool CloseNow() {
    const int file = file_;
    file_ = -1;
    return Close(file) == 0;
  }

 private:
  int file_;
};

void WriteAll(int file, std::string_view data, const fs::path& path) {
  while (!data.empty()) {
    const long long written =
        WriteSome(file, data.data(), std::min<std::size_t>(data.size(), kLargestPiece));
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) throw Fault::OfFile(LastError(), PathText(path));
    data.remove_prefix(static_cast<std::size_t>(written));
  }
}

/// Some bytes; 0 at the end of the file.
std::size_t ReadPiece(int file, char* to, std::size_t size, const fs::path& path) {
  for (;;) {
    const long long got = ReadSome(file, to, size);
    if (got >= 0) return static_cast<std::size_t>(got);
    if (errno != EINTR) throw Fault::OfFile(LastError(), PathText(path));
  }
}

/// What is known of an open file; throws when it is no regular file.
StatRecord RegularFile(int file, const fs::path& path) {
  if (file < 0) throw Fault::OfFile(LastError(), PathText(path));
  StatRecord record{};
  if (StatOf(file, record) != 0) throw Fault::OfFile(LastError(), PathText(path));
  if (!IsRegular(record)) {
    throw Fault(FaultNumber::PathFileAccess, "Not a file: " + PathText(path));
  }
  return record;
}

/// A file beside `path` that did not exist, and its name in `beside`. The name does not grow with
/// that of `path`, which may be as long as the disk allows.
int OpenBeside(const fs::path& path, fs::path& beside) {
  static std::atomic<unsigned> next{0};
  for (;;) {
    beside = path;
    beside.replace_filename(".tricklet-" + std::to_string(ProcessId()) + "-" +
                            std::to_string(next++) + ".new");
    const int file = OpenNew(beside);
    if (file >= 0 || errno != EEXIST) return file;
  }
}

/// Puts `beside` in the place of `path`, which may be marked read-only. The owner has decided who
/// may use the file, so the new one keeps the permissions of the old.
std::error_code PutInPlace(const fs::path& beside, const fs::path& path) {
  std::error_code failure;
  std::error_code ignored;
  const fs::file_status old = fs::status(path, ignored);
  if (fs::exists(old)) fs::permissions(beside, old.permissions() & fs::perms::all, ignored);
  fs::rename(beside, path, failure);
  if (!failure || !IsReadOnly(path)) return failure;
  // On this system the mark protects the name as well.
  fs::permissions(path, fs::perms::owner_write, fs::perm_options::add, ignored);
  fs::rename(beside, path, failure);
  if (failure) fs::permissions(path, fs::perms::owner_write, fs::perm_options::remove, ignored);
  return failure;
}

/// Lets `write` fill a new file beside `path` and puts it in its place. When `write` says no or
/// throws, nothing has changed.
bool ReplaceBy(const fs::path& path, const std::function<bool(int)>& write) {
  fs::path beside;
  std::error_code ignored;
  FileHandle file(OpenBeside(path, beside));
  if (file.Get() < 0) throw Fault::OfFile(LastError(), PathText(path));
  try {
    const bool written = write(file.Get());
    if (!file.CloseNow()) throw Fault::OfFile(LastError(), PathText(path));
    if (!written) {
      fs::remove(beside, ignored);
      return false;
    }
    if (const auto failure = PutInPlace(beside, path)) throw Fault::OfFile(failure, PathText(path));
    return true;
  } catch (...) {
    fs::remove(beside, ignored);
    throw;
  }
}

}  // namespace

std::string ReadWholeFile(const fs::path& path, std::size_t maxBytes) {
  const FileHandle file(OpenToRead(path));
  const auto size = static_cast<std::size_t>(RegularFile(file.Get(), path).st_size);
  if (size > maxBytes) {
    throw Fault(FaultNumber::DeviceError, "The file is too large: " + PathText(path));
  }
  std::string data(size, '\0');
  std::size_t have = 0;
  while (have < size) {
    const std::size_t got = ReadPiece(file.Get(), data.data() + have, size - have, path);
    if (got == 0) break;  // it has shrunk since
    have += got;
  }
  data.resize(have);
  return data;
}

void ReplaceWholeFile(const fs::path& path, std::string_view data) {
  ReplaceBy(path, [&](int file) {
    WriteAll(file, data, path);
    return true;
  });
}

bool CopyWholeFile(const fs::path& from, const fs::path& to, const std::function<bool()>& goOn) {
  const FileHandle source(OpenToRead(from, kNotThroughLinks));
  RegularFile(source.Get(), from);
  const bool copied = ReplaceBy(to, [&](int file) {
    std::string piece(kCopyPiece, '\0');
    for (;;) {
      const std::size_t got = ReadPiece(source.Get(), piece.data(), piece.size(), from);
      if (got == 0) return true;
      WriteAll(file, std::string_view(piece).substr(0, got), to);
      if (!goOn()) return false;
    }
  });
  std::error_code ignored;
  const auto changed = fs::last_write_time(from, ignored);
  if (copied && !ignored) fs::last_write_time(to, changed, ignored);
  return copied;
}

bool IsTaken(const fs::path& path) {
  std::error_code ignored;
  return fs::symlink_status(path, ignored).type() != fs::file_type::not_found;
}

bool FileExists(const fs::path& path) {
  std::error_code ignored;
  const fs::file_status status = fs::status(path, ignored);
  return status.type() != fs::file_type::not_found && !fs::is_directory(status);
}

bool IsReadOnly(const fs::path& path) {
  std::error_code failure;
  const fs::file_status status = fs::status(path, failure);
  return !failure && (status.permissions() & fs::perms::owner_write) == fs::perms::none;
}

}  // namespace tricklet
