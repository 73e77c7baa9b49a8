// A library to be preloaded (LD_PRELOAD, Linux with glibc) that stands between a program and the
// system calls by which it meets files. By these environment variables:
//   TRICKLET_WATCH=DIR        only calls on what lies in DIR are counted and recorded, and what is
//                             said on standard output and error
//   TRICKLET_CALLS=FILE       records each of them: number, name, path, second path, result, errno
//   TRICKLET_FAIL_AT=N        the N-th fails, from 1 on, with
//   TRICKLET_FAIL_ERRNO=E     this number; a write with ENOSPC stores half first
//   TRICKLET_FAIL_ON=1        and so does every call of that name after it
//   TRICKLET_KILL_AT=N        the process is killed instead of the N-th
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <type_traits>
#include <unistd.h>

#include <climits>

namespace {

thread_local bool inside = false;

/// What the environment asks for.
struct Orders {
  static std::string Text(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
  }
  static long Number(const char* name) { return std::strtol(Text(name).c_str(), nullptr, 10); }

  std::string watched = Text("TRICKLET_WATCH");
  std::string calls = Text("TRICKLET_CALLS");
  long failAt = Number("TRICKLET_FAIL_AT");
  int failure = static_cast<int>(Number("TRICKLET_FAIL_ERRNO"));
  bool failOn = Number("TRICKLET_FAIL_ON") != 0;
  long killAt = Number("TRICKLET_KILL_AT");
};

/// Lives as long as the process: others still call after the last destructor.
const Orders& TheOrders() {
  static const Orders& orders = *new Orders;
  return orders;
}

std::string LinkText(const std::string& link) {
  std::array<char, PATH_MAX> text{};
  const ssize_t size = ::readlink(link.c_str(), text.data(), text.size());
  return size < 0 ? "" : std::string(text.data(), static_cast<std::size_t>(size));
}

std::string PathOf(int file) {
  return LinkText("/proc/self/fd/" + std::to_string(file));
}

/// The path with its folder as it really is; the last name may be that of a link.
std::string PathAt(int folder, const char* name) {
  if (name == nullptr || *name == '\0') return PathOf(folder);
  std::string path = name;
  if (path.starts_with("/proc/self/fd/")) return LinkText(path);  // a file that has no name yet
  if (path.front() != '/') {
    path = (folder == AT_FDCWD ? LinkText("/proc/self/cwd") : PathOf(folder)) + "/" + path;
  }
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  const std::size_t slash = path.rfind('/');
  std::array<char, PATH_MAX> real{};
  if (::realpath(path.substr(0, slash + 1).c_str(), real.data()) == nullptr) return path;
  const std::string above = std::strcmp(real.data(), "/") == 0 ? "" : real.data();
  const std::string last = path.substr(slash + 1);
  if (last != "." && last != "..") return above + "/" + last;
  return ::realpath(path.c_str(), real.data()) == nullptr ? path : real.data();
}

struct Call {
  const char* name;
  std::string path;
  std::string other;  ///< the second path, or what is said

  bool Watched() const {
    const std::string& watched = TheOrders().watched;
    return path.starts_with(watched) || (!other.empty() && other.starts_with(watched));
  }
};

/// A path or text on one line, without the character that parts the columns.
std::string Column(std::string text) {
  for (char& c : text) {
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  }
  return text;
}

void Record(long number, const Call& call, long result, int failure) {
  const Orders& orders = TheOrders();
  if (orders.calls.empty()) return;
  static const long file = ::syscall(SYS_openat, AT_FDCWD, orders.calls.c_str(),
                                     O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
  const std::string line = std::to_string(number) + "\t" + call.name + "\t" + Column(call.path) +
                           "\t" + Column(call.other) + "\t" + std::to_string(result) + "\t" +
                           std::to_string(failure) + "\n";
  ::syscall(SYS_write, file, line.data(), line.size());
}

/// A write has stored half of its data, and the next one is to fail.
std::atomic<bool> diskFull{false};

/// Counts a watched call; whether it is to fail.
bool MustFail(const Call& call, long& number) {
  static std::atomic<long> counted{0};
  static std::atomic<const char*> failing{nullptr};
  const Orders& orders = TheOrders();
  number = ++counted;
  if (number == orders.killAt) {
    Record(number, call, -1, 0);
    ::raise(SIGKILL);
  }
  if (number == orders.failAt) {
    failing = call.name;
    return true;
  }
  if (std::strcmp(call.name, "write") == 0 && diskFull.exchange(false)) return true;
  return orders.failOn && failing.load() != nullptr && std::strcmp(failing, call.name) == 0;
}

template <class Result>
Result Failed() {
  if constexpr (std::is_pointer_v<Result>) {
    return nullptr;
  } else {
    return static_cast<Result>(-1);
  }
}

template <class Result>
long Plain(Result result) {
  if constexpr (std::is_pointer_v<Result>) {
    return result == nullptr ? -1 : 0;
  } else {
    return static_cast<long>(result);
  }
}

/// Makes the call, or makes it fail. `describe` gives the `Call`; `instead` is done where the call
/// fails although something has happened: a file that is closed all the same, half of a write.
template <class Describe, class Real, class Instead>
auto Through(Describe describe, Real real, Instead instead) -> decltype(real()) {
  if (inside) return real();
  inside = true;
  const int before = errno;
  const Call call = describe();
  long number = 0;
  const bool watched = call.Watched();
  const bool fails = watched && MustFail(call, number);
  errno = before;
  auto result = fails ? instead() : real();
  const bool failed = fails && result == Failed<decltype(result)>();
  if (failed) errno = TheOrders().failure;
  const int after = errno;
  if (watched) Record(number, call, Plain(result), Plain(result) < 0 ? after : 0);
  errno = after;
  inside = false;
  return result;
}

template <class Describe, class Real>
auto Through(Describe describe, Real real) -> decltype(real()) {
  return Through(describe, real, [] { return Failed<decltype(real())>(); });
}

template <class Function>
Function* Next(const char* name) {
  return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

/// Half of the data, once: the rest finds the disk full.
template <class Write>
ssize_t WriteHalf(std::size_t size, Write write) {
  static std::atomic<bool> done{false};
  if (TheOrders().failure != ENOSPC || size < 2 || done.exchange(true)) return -1;
  diskFull = true;
  return write(size / 2);
}

/// What is said counts when the program hands it over, which is before it can be seen.
void Say(std::FILE* stream, std::string_view text) {
  if (inside || (stream != stdout && stream != stderr)) return;
  inside = true;
  const int before = errno;
  Record(0, {"say", stream == stdout ? "stdout" : "stderr", std::string(text)},
         static_cast<long>(text.size()), 0);
  errno = before;
  inside = false;
}

const char* OpenName(int flags) {
  return (flags & O_CREAT) != 0 ? "create" : "open";
}
const char* OpenName(const char* mode) {
  return *mode == 'r' ? "open" : "create";
}

}  // namespace

// A function that takes the place of the library's `symbol`. It is declared by that label, since
// the headers declare the symbol in ways (variadic, noexcept) that need not be shared here. What
// follows the arguments is what to do instead where the call fails, and then the `Call`.
// NOLINTBEGIN(bugprone-macro-parentheses)
#define TAKE_PLACE_OR(result, symbol, parameters, arguments, instead, ...)            \
  extern "C" result Watched_##symbol parameters __asm__(#symbol);                     \
  result Watched_##symbol parameters {                                                \
    static auto* const next = Next<result parameters>(#symbol);                       \
    return Through([&] { return Call{__VA_ARGS__}; }, [&] { return next arguments; }, \
                   [&]() -> result { instead; });                                     \
  }
#define TAKE_PLACE(result, symbol, parameters, arguments, ...) \
  TAKE_PLACE_OR(result, symbol, parameters, arguments, return Failed<result>(), __VA_ARGS__)
// NOLINTEND(bugprone-macro-parentheses)

using Text = const char*;
using Bytes = const void*;
using Size = std::size_t;
using Status = struct stat;
using StatusX = struct statx;
using Times = const struct timespec*;
using Entry = struct dirent;
constexpr int kHere = AT_FDCWD;

TAKE_PLACE(int, open, (Text path, int flags, mode_t mode), (path, flags, mode), OpenName(flags),
           PathAt(kHere, path), {})
TAKE_PLACE(int, open64, (Text path, int flags, mode_t mode), (path, flags, mode), OpenName(flags),
           PathAt(kHere, path), {})
TAKE_PLACE(int, openat, (int at, Text path, int flags, mode_t mode), (at, path, flags, mode),
           OpenName(flags), PathAt(at, path), {})
TAKE_PLACE(int, openat64, (int at, Text path, int flags, mode_t mode), (at, path, flags, mode),
           OpenName(flags), PathAt(at, path), {})
TAKE_PLACE(FILE*, fopen, (Text path, Text mode), (path, mode), OpenName(mode), PathAt(kHere, path),
           {})
TAKE_PLACE(FILE*, fopen64, (Text path, Text mode), (path, mode), OpenName(mode),
           PathAt(kHere, path), {})
TAKE_PLACE_OR(int, close, (int file), (file), next(file); return -1, "close", PathOf(file), {})

TAKE_PLACE(ssize_t, read, (int file, void* to, Size size), (file, to, size), "read", PathOf(file),
           {})
TAKE_PLACE_OR(ssize_t, write, (int file, Bytes from, Size size), (file, from, size),
              return WriteHalf(size, [&](Size half) { return next(file, from, half); }), "write",
              PathOf(file), {})
TAKE_PLACE(ssize_t, pwrite64, (int file, Bytes from, Size size, off_t at), (file, from, size, at),
           "write", PathOf(file), {})
TAKE_PLACE(ssize_t, writev, (int file, Bytes parts, int count), (file, parts, count), "write",
           PathOf(file), {})
TAKE_PLACE(ssize_t, sendfile64, (int to, int from, off_t* at, Size size), (to, from, at, size),
           "write", PathOf(to), {})
TAKE_PLACE(int, ftruncate, (int file, off_t size), (file, size), "ftruncate", PathOf(file), {})
TAKE_PLACE(int, ftruncate64, (int file, off_t size), (file, size), "ftruncate", PathOf(file), {})

TAKE_PLACE(int, fsync, (int file), (file), "fsync", PathOf(file), {})
TAKE_PLACE(int, fdatasync, (int file), (file), "fsync", PathOf(file), {})

TAKE_PLACE(int, rename, (Text from, Text to), (from, to), "rename", PathAt(kHere, from),
           PathAt(kHere, to))
TAKE_PLACE(int, renameat, (int fromAt, Text from, int toAt, Text to), (fromAt, from, toAt, to),
           "rename", PathAt(fromAt, from), PathAt(toAt, to))
TAKE_PLACE(int, renameat2, (int fromAt, Text from, int toAt, Text to, unsigned flags),
           (fromAt, from, toAt, to, flags), "rename", PathAt(fromAt, from), PathAt(toAt, to))
TAKE_PLACE(int, link, (Text from, Text to), (from, to), "link", PathAt(kHere, from),
           PathAt(kHere, to))
TAKE_PLACE(int, linkat, (int fromAt, Text from, int toAt, Text to, int flags),
           (fromAt, from, toAt, to, flags), "link", PathAt(fromAt, from), PathAt(toAt, to))
TAKE_PLACE(int, symlink, (Text target, Text path), (target, path), "symlink", PathAt(kHere, path),
           {})
TAKE_PLACE(int, unlink, (Text path), (path), "unlink", PathAt(kHere, path), {})
TAKE_PLACE(int, unlinkat, (int at, Text path, int flags), (at, path, flags), "unlink",
           PathAt(at, path), {})
TAKE_PLACE(int, remove, (Text path), (path), "unlink", PathAt(kHere, path), {})
TAKE_PLACE(int, rmdir, (Text path), (path), "unlink", PathAt(kHere, path), {})
TAKE_PLACE(int, mkdir, (Text path, mode_t mode), (path, mode), "mkdir", PathAt(kHere, path), {})
TAKE_PLACE(int, mkdirat, (int at, Text path, mode_t mode), (at, path, mode), "mkdir",
           PathAt(at, path), {})

TAKE_PLACE(int, chmod, (Text path, mode_t mode), (path, mode), "chmod", PathAt(kHere, path), {})
TAKE_PLACE(int, fchmod, (int file, mode_t mode), (file, mode), "chmod", PathOf(file), {})
TAKE_PLACE(int, fchmodat, (int at, Text path, mode_t mode, int flags), (at, path, mode, flags),
           "chmod", PathAt(at, path), {})
TAKE_PLACE(int, utimensat, (int at, Text path, Times times, int flags), (at, path, times, flags),
           "utimensat", PathAt(at, path), {})
TAKE_PLACE(int, futimens, (int file, Times times), (file, times), "utimensat", PathOf(file), {})
TAKE_PLACE(int, flock, (int file, int how), (file, how), "flock", PathOf(file), {})

TAKE_PLACE(int, stat, (Text path, Status* to), (path, to), "stat", PathAt(kHere, path), {})
TAKE_PLACE(int, stat64, (Text path, Status* to), (path, to), "stat", PathAt(kHere, path), {})
TAKE_PLACE(int, lstat, (Text path, Status* to), (path, to), "stat", PathAt(kHere, path), {})
TAKE_PLACE(int, lstat64, (Text path, Status* to), (path, to), "stat", PathAt(kHere, path), {})
TAKE_PLACE(int, fstat, (int file, Status* to), (file, to), "stat", PathOf(file), {})
TAKE_PLACE(int, fstat64, (int file, Status* to), (file, to), "stat", PathOf(file), {})
TAKE_PLACE(int, fstatat, (int at, Text path, Status* to, int flags), (at, path, to, flags), "stat",
           PathAt(at, path), {})
TAKE_PLACE(int, fstatat64, (int at, Text path, Status* to, int flags), (at, path, to, flags),
           "stat", PathAt(at, path), {})
TAKE_PLACE(int, statx, (int at, Text path, int flags, unsigned mask, StatusX* to),
           (at, path, flags, mask, to), "stat", PathAt(at, path), {})
TAKE_PLACE(int, access, (Text path, int how), (path, how), "access", PathAt(kHere, path), {})
TAKE_PLACE(int, faccessat, (int at, Text path, int how, int flags), (at, path, how, flags),
           "access", PathAt(at, path), {})
TAKE_PLACE(char*, realpath, (Text path, char* to), (path, to), "stat", PathAt(kHere, path), {})
TAKE_PLACE(DIR*, opendir, (Text path), (path), "opendir", PathAt(kHere, path), {})
TAKE_PLACE(DIR*, fdopendir, (int file), (file), "opendir", PathOf(file), {})
TAKE_PLACE(Entry*, readdir, (DIR * folder), (folder), "readdir", PathOf(::dirfd(folder)), {})
TAKE_PLACE(Entry*, readdir64, (DIR * folder), (folder), "readdir", PathOf(::dirfd(folder)), {})

extern "C" Size WatchedFwrite(Bytes from, Size size, Size count, FILE* to) __asm__("fwrite");
Size WatchedFwrite(Bytes from, Size size, Size count, FILE* to) {
  static auto* const next = Next<Size(Bytes, Size, Size, FILE*)>("fwrite");
  Say(to, {static_cast<Text>(from), size * count});
  return next(from, size, count, to);
}

extern "C" int WatchedPutc(int c, FILE* to) __asm__("putc");
int WatchedPutc(int c, FILE* to) {
  static auto* const next = Next<int(int, FILE*)>("putc");
  const char said = static_cast<char>(c);
  Say(to, {&said, 1});
  return next(c, to);
}
