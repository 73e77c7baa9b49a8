#include "disk/file_io.h"

#include <string>
#include <system_error>
#include <utility>

#include "core/fault.h"
#include "core/text.h"
#include "disk/leftovers.h"
#include "disk/presence.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// The piece in which files are copied: small enough to cancel between two of them.
constexpr std::size_t kCopyPiece = std::size_t{1} << 20U;

/// The file that is meant by `path`, which may be a link to it.
fs::path RealPath(const fs::path& path) {
  std::error_code failure;
  if (!fs::is_symlink(fs::symlink_status(path, failure))) return path;
  fs::path real = fs::canonical(path, failure);
  if (failure) throw Fault::OfFile(failure, PathText(path));
  return real;
}

/// A file beside `path` that did not exist, and its name in `beside`. The name does not grow with
/// that of `path`, which may be as long as the disk allows.
NativeFile MakeBeside(const fs::path& path, fs::path& beside) {
  for (;;) {
    beside = path;
    beside.replace_filename(NewFileName());
    if (auto file = NativeFile::New(beside, path)) return std::move(*file);
  }
}

/// Gives `beside` the permissions of the file `path`, if there is one: its owner has decided who
/// may use it. That some are missing afterwards, as on disks that know few, is no failure.
std::error_code KeepPermissions(const fs::path& beside, const fs::path& path) {
  std::error_code failure;
  const fs::file_status old = fs::status(path, failure);
  if (!fs::exists(old)) return old.type() == fs::file_type::not_found ? std::error_code() : failure;
  fs::permissions(beside, old.permissions() & fs::perms::all, failure);
  if (!failure) return {};
  std::error_code unseen;
  const fs::perms granted = fs::status(beside, unseen).permissions();
  const bool more = unseen || (granted & ~old.permissions()) != fs::perms::none;
  return more ? failure : std::error_code();
}

/// Puts `beside` in the place of `path`, which may be marked read-only.
std::error_code Place(const fs::path& beside, const fs::path& path) {
  std::error_code ignored;
  std::error_code failure = KeepPermissions(beside, path);
  if (failure) return failure;
  failure = RenameOver(beside, path);
  if (!failure || !IsReadOnly(path)) return failure;
  // On this system the mark protects the name as well.
  fs::permissions(path, fs::perms::owner_write, fs::perm_options::add, ignored);
  failure = RenameOver(beside, path);
  if (failure) fs::permissions(path, fs::perms::owner_write, fs::perm_options::remove, ignored);
  return failure;
}

fs::path FolderOf(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

}  // namespace

std::string ReadWholeFile(const fs::path& path, std::size_t maxBytes) {
  NativeFile file = NativeFile::ToRead(path);
  if (file.Size() > maxBytes) {
    throw Fault(FaultNumber::DeviceError, "The file is too large: " + ShownPath(path));
  }
  std::string data(static_cast<std::size_t>(file.Size()), '\0');
  std::size_t have = 0;
  while (have < data.size()) {
    const std::size_t got = file.Read(data.data() + have, data.size() - have);
    if (got == 0) break;  // it has shrunk since
    have += got;
  }
  data.resize(have);
  return data;
}

void UnflushedFolders::Flush() {
  while (!folders_.empty()) {
    FlushFolder(*folders_.begin());
    folders_.erase(folders_.begin());
  }
}

Replacement::Replacement(const fs::path& path)
    : path_(RealPath(path)), file_(MakeBeside(path_, beside_)) {}

Replacement::~Replacement() {
  if (placed_) return;
  file_.Abandon();  // an open file cannot be removed everywhere
  std::error_code ignored;
  fs::remove(beside_, ignored);
}

void Replacement::Complete() {
  file_.Flush();
  file_.Close();
}

void Replacement::PutInPlace(UnflushedFolders& unflushed) {
  if (const auto failure = Place(beside_, path_)) throw Fault::OfFile(failure, PathText(path_));
  placed_ = true;
  unflushed.Add(FolderOf(path_));
}

void ReplaceWholeFile(const fs::path& path, std::string_view data) {
  UnflushedFolders unflushed;
  ReplaceWholeFile(path, data, unflushed);
  unflushed.Flush();
}

void ReplaceWholeFile(const fs::path& path, std::string_view data, UnflushedFolders& unflushed) {
  Replacement replacement(path);
  replacement.File().Write(data);
  replacement.Complete();
  replacement.PutInPlace(unflushed);
}

void MakeFolders(const fs::path& folder) {
  if (folder.empty() || FolderExists(folder)) return;
  MakeFolders(folder.parent_path());
  std::error_code failure;
  fs::create_directory(folder, failure);
  if (failure) throw Fault::OfFile(failure, PathText(folder));
  FlushFolder(FolderOf(folder));
}

bool CopyWholeFile(const fs::path& from, const fs::path& to, UnflushedFolders& unflushed,
                   const std::function<bool()>& goOn) {
  NativeFile source = NativeFile::ToRead(from, Links::Refused);
  Replacement replacement(to);
  std::string piece(kCopyPiece, '\0');
  while (const std::size_t got = source.Read(piece.data(), piece.size())) {
    replacement.File().Write(std::string_view(piece).substr(0, got));
    if (!goOn()) return false;
  }
  replacement.Complete();
  std::error_code failure;
  const auto changed = fs::last_write_time(from, failure);
  if (!failure) fs::last_write_time(replacement.Beside(), changed, failure);
  replacement.PutInPlace(unflushed);
  return true;
}

}  // namespace tricklet
