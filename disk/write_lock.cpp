#include "disk/write_lock.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <string_view>
#include <thread>

#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tricklet {
namespace {

namespace fs = std::filesystem;

constexpr const char* kLockFile = ".tricklet-lock";
constexpr std::intptr_t kNone = -1;
/// Another program's name and number; more is no lock of ours.
constexpr std::size_t kMaxLockBytes = 1024;

#ifdef _WIN32
std::string ThisProgram() {
  std::array<wchar_t, MAX_PATH> path{};
  GetModuleFileNameW(nullptr, path.data(), MAX_PATH);
  return PathText(fs::path(path.data()).stem());
}
#else
std::string ThisProgram() {
  std::error_code failure;
  const fs::path path = fs::read_symlink("/proc/self/exe", failure);
  return failure ? "another program" : PathText(path.filename());
}
#endif

std::string HolderOf(const fs::path& lockFile) {
  try {
    const std::string text = ReadWholeFile(lockFile, kMaxLockBytes);
    if (!text.empty()) return Showable(text);
  } catch (const Fault&) {
    // It is being made or has just gone; that it was there is known all the same.
  }
  return "another program";
}

}  // namespace

std::unique_ptr<WriteLock> WriteLock::Take(const fs::path& folder,
                                           std::chrono::milliseconds patience,
                                           std::string& holder) {
  constexpr std::chrono::milliseconds kPause{20};
  using Clock = std::chrono::steady_clock;
  const Clock::time_point end = Clock::now() + patience;
  std::unique_ptr<WriteLock> lock(new WriteLock(folder));
  for (;;) {
    switch (lock->Try()) {
      case Attempt::Taken:
        lock->Sign();
        return lock;
      case Attempt::Needless:
        return lock;
      case Attempt::Busy:
        break;
    }
    if (Clock::now() >= end) break;
    std::this_thread::sleep_for(kPause);
  }
  holder = HolderOf(lock->path_);
  return nullptr;
}

WriteLock::WriteLock(const fs::path& folder) : path_(folder / kLockFile), handle_(kNone) {}

#ifdef _WIN32

// The file can be opened to be written once only, and goes with the handle.
WriteLock::Attempt WriteLock::Try() {
  constexpr DWORD kFlags = FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE;
  const HANDLE file = CreateFileW(path_.c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ, nullptr,
                                  OPEN_ALWAYS, kFlags, nullptr);
  if (file != INVALID_HANDLE_VALUE) {
    handle_ = reinterpret_cast<NativeHandle>(file);
    return Attempt::Taken;
  }
  const DWORD failure = GetLastError();
  // A file that is about to go refuses with "access denied" until it has gone.
  const bool busy =
      failure == ERROR_SHARING_VIOLATION || (failure == ERROR_ACCESS_DENIED && fs::exists(path_));
  return busy ? Attempt::Busy : Attempt::Needless;
}

void WriteLock::Sign() const {
  const std::string text = ThisProgram() + " (process " + std::to_string(ProcessId()) + ")";
  DWORD written = 0;
  WriteFile(reinterpret_cast<HANDLE>(handle_), text.data(), static_cast<DWORD>(text.size()),
            &written, nullptr);
}

WriteLock::~WriteLock() {
  if (handle_ != kNone) CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

#else

namespace {

/// The file that is open is still the one of this path: whoever had the lock before may have
/// removed it between the opening and the locking.
bool IsStillThere(int file, const fs::path& path) {
  struct stat open {};
  struct stat there {};
  return ::fstat(file, &open) == 0 && ::lstat(path.c_str(), &there) == 0 &&
         open.st_ino == there.st_ino && open.st_dev == there.st_dev;
}

}  // namespace

WriteLock::Attempt WriteLock::Try() {
  constexpr mode_t kMode = 0666;  // less the user's mask
  constexpr int kHowForeign = O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
  constexpr int kHow = O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
  // Each attempt that fails is another program's that has just finished; or the disk does not say
  // what is there, which more attempts do not change.
  constexpr int kAttempts = 100;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    int file = ::open(path_.c_str(), kHow, kMode);
    // Another user's, who has it now or was killed.
    if (file < 0 && errno == EACCES) file = ::open(path_.c_str(), kHowForeign);
    if (file < 0) return Attempt::Needless;
    if (::flock(file, LOCK_EX | LOCK_NB) != 0) {
      const int failure = errno;
      ::close(file);
      if (failure == EINTR) continue;
      return failure == EWOULDBLOCK ? Attempt::Busy : Attempt::Needless;
    }
    if (IsStillThere(file, path_)) {
      handle_ = file;
      return Attempt::Taken;
    }
    ::close(file);
  }
  return Attempt::Busy;
}

void WriteLock::Sign() const {
  const std::string text = ThisProgram() + " (process " + std::to_string(ProcessId()) + ")";
  const int file = static_cast<int>(handle_);
  // Not to be able to say who it is does not matter to the lock.
  if (::ftruncate(file, 0) == 0) [[maybe_unused]]
    const auto put = ::write(file, text.data(), text.size());
}

WriteLock::~WriteLock() {
  if (handle_ == kNone) return;
  const int file = static_cast<int>(handle_);
  // Removed while it is locked, so that nobody else's can be meant.
  if (IsStillThere(file, path_)) ::unlink(path_.c_str());
  ::close(file);
}

#endif

}  // namespace tricklet
