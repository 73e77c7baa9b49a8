#include "disk/native_file.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

#include "core/fault.h"
#include "core/text.h"

#ifdef _WIN32
#include <io.h>
#include <process.h>
#include <windows.h>
#else
#include <csignal>
#include <unistd.h>
#endif

namespace tricklet {
namespace {

namespace fs = std::filesystem;

#ifdef _WIN32
using StatRecord = struct _stat64;
bool IsFolder(const fs::path& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}
/// `failure` as errno has it elsewhere.
int ErrnoOf(DWORD failure, const fs::path& path) {
  switch (failure) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
      return ENOENT;
    case ERROR_ACCESS_DENIED:
      return IsFolder(path) ? EISDIR : EACCES;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
      return EACCES;
    case ERROR_TOO_MANY_OPEN_FILES:
      return EMFILE;
    default:
      return EIO;
  }
}
/// Lets others replace and remove the file while it is read, which the library's own open does not.
int OpenToRead(const fs::path& path, Links /*links*/) {
  constexpr DWORD kShare = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE handle = CreateFileW(path.c_str(), GENERIC_READ, kShare, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    errno = ErrnoOf(GetLastError(), path);
    return -1;
  }
  const int file = _open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_RDONLY | _O_BINARY);
  if (file < 0) CloseHandle(handle);
  return file;
}
int OpenNew(const fs::path& path) {
  return _wopen(path.c_str(), _O_WRONLY | _O_BINARY | _O_CREAT | _O_EXCL | _O_NOINHERIT,
                _S_IREAD | _S_IWRITE);
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
int FlushAll(int file) {
  return _commit(file);  // FlushFileBuffers
}
int CloseFile(int file) {
  return _close(file);
}
#else
using StatRecord = struct stat;
int OpenToRead(const fs::path& path, Links links) {
  const int refused = links == Links::Refused ? O_NOFOLLOW : 0;
  return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | refused);
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
int FlushAll(int file) {
  return ::fsync(file);
}
int CloseFile(int file) {
  return ::close(file);
}
#endif

/// The largest piece that every platform's calls take.
constexpr std::size_t kLargestPiece = std::size_t{1} << 30U;

std::error_code LastError() {
  return {errno, std::generic_category()};
}

[[noreturn]] void ThrowLast(const fs::path& path) {
  throw Fault::OfFile(LastError(), PathText(path));
}

}  // namespace

NativeFile NativeFile::ToRead(const fs::path& path, Links links) {
  NativeFile file(path, OpenToRead(path, links));
  if (file.file_ < 0) ThrowLast(path);
  file.RequireRegular();
  return file;
}

std::optional<NativeFile> NativeFile::New(const fs::path& path, fs::path shown) {
  NativeFile file(std::move(shown), OpenNew(path));
  if (file.file_ >= 0) return file;
  if (errno != EEXIST) ThrowLast(file.path_);
  return std::nullopt;
}

NativeFile::NativeFile(NativeFile&& other) noexcept
    : path_(std::move(other.path_)), file_(std::exchange(other.file_, -1)), size_(other.size_) {}

NativeFile::~NativeFile() {
  Abandon();
}

void NativeFile::Abandon() {
  if (file_ >= 0) CloseFile(std::exchange(file_, -1));
}

void NativeFile::RequireRegular() {
  StatRecord record{};
  if (StatOf(file_, record) != 0) ThrowLast(path_);
  if (!IsRegular(record)) {
    throw Fault(FaultNumber::PathFileAccess, "Not a file: " + ShownPath(path_));
  }
  size_ = static_cast<std::uintmax_t>(record.st_size);
}

std::size_t NativeFile::Read(char* to, std::size_t size) {
  for (;;) {
    const long long got = ReadSome(file_, to, std::min(size, kLargestPiece));
    if (got >= 0) return static_cast<std::size_t>(got);
    if (errno != EINTR) ThrowLast(path_);
  }
}

void NativeFile::Write(std::string_view data) {
  while (!data.empty()) {
    const long long written = WriteSome(file_, data.data(), std::min(data.size(), kLargestPiece));
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) ThrowLast(path_);
    data.remove_prefix(static_cast<std::size_t>(written));
  }
}

void NativeFile::Flush() {
  while (FlushAll(file_) != 0) {
    if (errno != EINTR) ThrowLast(path_);
  }
}

void NativeFile::Close() {
  if (CloseFile(std::exchange(file_, -1)) != 0 && errno != EINTR) ThrowLast(path_);
}

#ifdef _WIN32

std::error_code RenameOver(const fs::path& from, const fs::path& to) {
  constexpr DWORD kHow = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  // A scanner for viruses or an index may have the file open for a moment.
  constexpr DWORD kFirstPause = 10;  // ms; doubled up to some 0.6 s in all
  constexpr DWORD kLastPause = 320;
  for (DWORD pause = kFirstPause;; pause *= 2) {
    if (MoveFileExW(from.c_str(), to.c_str(), kHow) != 0) return {};
    const DWORD failure = GetLastError();
    const bool busy = failure == ERROR_SHARING_VIOLATION || failure == ERROR_ACCESS_DENIED;
    if (busy && IsFolder(to)) return std::make_error_code(std::errc::is_a_directory);
    if (!busy || pause > kLastPause) return {static_cast<int>(failure), std::system_category()};
    Sleep(pause);
  }
}

void FlushFolder(const fs::path& /*folder*/) {}

int ProcessId() {
  return _getpid();
}

bool ProcessRuns(int id) {
  const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(id));
  if (process == nullptr) return GetLastError() != ERROR_INVALID_PARAMETER;
  const bool runs = WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
  CloseHandle(process);
  return runs;
}

#else

std::error_code RenameOver(const fs::path& from, const fs::path& to) {
  std::error_code failure;
  fs::rename(from, to, failure);
  return failure;
}

void FlushFolder(const fs::path& folder) {
  const int file = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (file < 0) {
    // A folder that can be written but not read can only be flushed with everything else.
    if (errno != EACCES) ThrowLast(folder);
    ::sync();
    return;
  }
  int failure = 0;
  do {
    failure = ::fsync(file) == 0 ? 0 : errno;
  } while (failure == EINTR);
  CloseFile(file);
  // Some network and user-space file systems know no such call for folders.
  if (failure == 0 || failure == EINVAL || failure == ENOTSUP || failure == ENOSYS) return;
  throw Fault::OfFile({failure, std::generic_category()}, PathText(folder));
}

int ProcessId() {
  return ::getpid();
}

bool ProcessRuns(int id) {
  return ::kill(id, 0) == 0 || errno != ESRCH;
}

#endif

}  // namespace tricklet
