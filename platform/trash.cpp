#include "platform/trash.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <optional>
#include <ranges>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <vector>

#include "core/fault.h"
#include "core/local_time.h"
#include "core/text.h"
#include "disk/native_file.h"
#include "disk/presence.h"
#include "platform/home_folder.h"

namespace tricklet::platform {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kInfoEnding = ".trashinfo";
/// So many things of one name the trash takes; a search for a free name must end.
constexpr int kMostOfOneName = 99999;

[[noreturn]] void ThrowLast(const fs::path& path) {
  throw Fault::OfFile({errno, std::generic_category()}, PathText(path));
}

/// Folders that were made, and go again unless they are kept.
class NewFolders {
 public:
  NewFolders() = default;
  NewFolders(const NewFolders&) = delete;
  NewFolders& operator=(const NewFolders&) = delete;
  ~NewFolders() {
    for (const fs::path& made : std::ranges::reverse_view(made_)) ::rmdir(made.c_str());
  }
  /// The folder is there, or has been made with what was missing above it, for the user alone.
  bool Have(const fs::path& folder) {
    constexpr mode_t kPrivate = 0700;
    if (FolderExists(folder)) return true;
    if (!folder.has_relative_path() || !Have(folder.parent_path())) return false;
    if (::mkdir(folder.c_str(), kPrivate) != 0) return errno == EEXIST && FolderExists(folder);
    made_.push_back(folder);
    FlushFolder(folder.parent_path());
    return true;
  }
  void Keep() { made_.clear(); }

 private:
  std::vector<fs::path> made_;
};

/// A trash and what the paths in it are relative to: the top folder of its volume, or nothing in
/// the user's own, where they are absolute.
struct Trash {
  fs::path folder;
  fs::path top;
};

/// The volume on which `path` is, or would be when it were made.
dev_t VolumeOf(const fs::path& path) {
  struct stat found {};
  if (::stat(path.c_str(), &found) == 0) return found.st_dev;
  if ((errno != ENOENT && errno != ENOTDIR) || !path.has_relative_path()) ThrowLast(path);
  return VolumeOf(path.parent_path());
}

/// The user's folder for the data of programs ("XDG Base Directory Specification",
/// freedesktop.org).
fs::path DataHome() {
  const char* named = std::getenv("XDG_DATA_HOME");
  if (named != nullptr && *named == '/') return named;
  const fs::path home = HomeFolder();
  if (home.empty()) throw Fault(FaultNumber::PathNotFound, kNoHomeFolder);
  return home / ".local/share";
}

/// A folder, no link to one, and the user's own: nobody else decides where it leads.
bool IsOwnFolder(const fs::path& path) {
  struct stat found {};
  return ::lstat(path.c_str(), &found) == 0 && S_ISDIR(found.st_mode) && found.st_uid == ::getuid();
}

/// A folder in which each user keeps a trash that no other can remove.
bool IsSharedTrash(const fs::path& path) {
  struct stat found {};
  return ::lstat(path.c_str(), &found) == 0 && S_ISDIR(found.st_mode) &&
         (found.st_mode & S_ISVTX) != 0;
}

/// The trash for what lies in `folder`; nothing when there is none and none can be made.
std::optional<Trash> TrashFor(const fs::path& folder, NewFolders& made) {
  const dev_t volume = VolumeOf(folder);
  const fs::path home = DataHome() / "Trash";
  if (VolumeOf(home) == volume) {
    return made.Have(home) ? std::optional<Trash>({home, {}}) : std::nullopt;
  }
  fs::path top = folder;
  while (top.has_relative_path() && VolumeOf(top.parent_path()) == volume) top = top.parent_path();
  const std::string user = std::to_string(::getuid());
  const fs::path shared = top / ".Trash";
  if (IsSharedTrash(shared) && made.Have(shared / user) && IsOwnFolder(shared / user)) {
    return Trash{shared / user, top};
  }
  const fs::path own = top / (".Trash-" + user);
  if (made.Have(own) && IsOwnFolder(own)) return Trash{own, top};
  return std::nullopt;
}

/// The name under which a thing goes into the trash at the attempt of this number, from 1. What is
/// too long for the disk with its endings is cut between two characters.
std::string NameInTrash(std::string name, int attempt, std::size_t longest) {
  const std::string number = attempt == 1 ? "" : "." + std::to_string(attempt);
  const std::size_t room = longest - kInfoEnding.size() - number.size();
  if (name.size() > room) {
    std::size_t end = room;
    while (end + 3 > room && (static_cast<unsigned char>(name[end]) & 0xC0U) == 0x80U) --end;
    name.resize(end);
  }
  return name + number;
}

/// Bytes other than unreserved characters and "/" as "%XX" (RFC 2396, section 2).
std::string Escaped(const std::string& bytes) {
  constexpr std::string_view kPlain =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_.!~*'()/";
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string escaped;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (kPlain.find(c) != std::string_view::npos) {
      escaped += c;
    } else {
      escaped += {'%', kDigits[byte >> 4U], kDigits[byte & 0xFU]};
    }
  }
  return escaped;
}

std::string InfoText(const fs::path& thing, const Trash& trash) {
  const fs::path shown = trash.top.empty() ? thing : thing.lexically_relative(trash.top);
  return "[Trash Info]\nPath=" + Escaped(shown.native()) +
         "\nDeletionDate=" + LocalTimeText(std::time(nullptr), "%Y-%m-%dT%H:%M:%S") + "\n";
}

/// The record of a thing in the trash, complete before the thing is moved; removed again when it
/// was not.
class Info {
 public:
  /// Throws `Fault`.
  Info(NativeFile file, fs::path path, std::string_view text) : path_(std::move(path)) {
    try {
      file.Write(text);
      file.Flush();
      file.Close();
    } catch (const Fault&) {
      Remove();
      throw;
    }
  }
  ~Info() {
    if (!kept_) Remove();
  }
  Info(const Info&) = delete;
  Info& operator=(const Info&) = delete;
  void Keep() { kept_ = true; }

 private:
  void Remove() const { ::unlink(path_.c_str()); }
  fs::path path_;
  bool kept_ = false;
};

/// Renames over nothing. EEXIST when the name is taken; 0 when it is done.
int RenameToNew(const fs::path& from, const fs::path& to) {
#ifdef RENAME_NOREPLACE
  if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS && errno != ENOTSUP) return errno;
#endif
  // Not every file system can tell by itself.
  if (IsTaken(to)) return EEXIST;
  return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

/// The folders that a move has touched are on the disk. Where one cannot be, the move is undone.
bool Lasts(const fs::path& from, const fs::path& to, const fs::path& infos) {
  try {
    for (const fs::path& touched : {to.parent_path(), infos, from.parent_path()}) {
      FlushFolder(touched);
    }
    return true;
  } catch (const Fault&) {
    return RenameToNew(to, from) != 0;  // what cannot be undone is done
  }
}

bool MoveInto(const Trash& trash, const fs::path& thing) {
  const fs::path infos = trash.folder / "info";
  const fs::path files = trash.folder / "files";
  const long longest = ::pathconf(infos.c_str(), _PC_NAME_MAX);
  constexpr long kShortestLimit = 64;  // room for the endings and a name that is still one
  if (longest < kShortestLimit) return false;
  const std::string text = InfoText(thing, trash);
  for (int attempt = 1; attempt <= kMostOfOneName; ++attempt) {
    const std::string name =
        NameInTrash(thing.filename().native(), attempt, static_cast<std::size_t>(longest));
    if (IsTaken(files / name)) continue;
    fs::path infoPath = infos / (name + std::string(kInfoEnding));
    auto file = NativeFile::New(infoPath, infoPath);
    if (!file) continue;
    Info info(std::move(*file), infoPath, text);
    const int failure = RenameToNew(thing, files / name);
    if (failure == EEXIST) continue;
    if (failure != 0 || !Lasts(thing, files / name, infos)) return false;
    info.Keep();
    return true;
  }
  return false;
}

}  // namespace

bool MoveToTrash(const fs::path& path) {
  try {
    const fs::path named = path.has_filename() ? path : path.parent_path();
    const fs::path name = named.filename();
    if (name.empty() || name == "." || name == "..") return false;
    // A link is moved itself; those on the way to it are not part of where it lies.
    const fs::path thing = fs::canonical(fs::absolute(named).parent_path()) / name;
    if (!IsTaken(thing)) return false;
    NewFolders made;
    const auto trash = TrashFor(thing.parent_path(), made);
    if (!trash || !made.Have(trash->folder / "info") || !made.Have(trash->folder / "files") ||
        !MoveInto(*trash, thing)) {
      return false;
    }
    made.Keep();
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace tricklet::platform
