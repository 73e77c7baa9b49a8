#include "library/file_io.h"

#include <algorithm>
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
int OpenToRead(const fs::path& path) {
  return _wopen(path.c_str(), _O_RDONLY | _O_BINARY);
}
int OpenToWrite(const fs::path& path) {
  return _wopen(path.c_str(), _O_WRONLY | _O_BINARY | _O_CREAT | _O_TRUNC, _S_IREAD | _S_IWRITE);
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
int OpenToRead(const fs::path& path) {
  // Without O_NONBLOCK, opening a pipe that someone named like a board would wait for ever.
  return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
}
int OpenToWrite(const fs::path& path) {
  constexpr mode_t kMode = 0666;  // less the user's mask
  return ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kMode);
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

}  // namespace

std::string ReadWholeFile(const fs::path& path, std::size_t maxBytes) {
  const FileHandle file(OpenToRead(path));
  if (file.Get() < 0) throw Fault::OfFile(LastError(), PathText(path));
  StatRecord record{};
  if (StatOf(file.Get(), record) != 0) throw Fault::OfFile(LastError(), PathText(path));
  if (!IsRegular(record)) {
    throw Fault(FaultNumber::PathFileAccess, "Not a file: " + PathText(path));
  }
  const auto size = static_cast<std::size_t>(record.st_size);
  if (size > maxBytes) {
    throw Fault(FaultNumber::DeviceError, "The file is too large: " + PathText(path));
  }
  std::string data(size, '\0');
  std::size_t have = 0;
  while (have < size) {
    const long long got = ReadSome(file.Get(), data.data() + have, size - have);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) throw Fault::OfFile(LastError(), PathText(path));
    if (got == 0) break;  // it has shrunk since
    have += static_cast<std::size_t>(got);
  }
  data.resize(have);
  return data;
}

void ReplaceWholeFile(const fs::path& path, std::string_view data) {
  fs::path beside = path;
  beside += "." + std::to_string(ProcessId()) + ".new";
  std::error_code ignored;
  FileHandle file(OpenToWrite(beside));
  if (file.Get() < 0) throw Fault::OfFile(LastError(), PathText(path));
  try {
    WriteAll(file.Get(), data, path);
    if (!file.CloseNow()) throw Fault::OfFile(LastError(), PathText(path));
    std::error_code failure;
    fs::rename(beside, path, failure);
    if (failure) throw Fault::OfFile(failure, PathText(path));
  } catch (...) {
    fs::remove(beside, ignored);
    throw;
  }
}

bool FileExists(const fs::path& path) {
  std::error_code ignored;
  const fs::file_status status = fs::status(path, ignored);
  return fs::exists(status) && !fs::is_directory(status);
}

}  // namespace tricklet
