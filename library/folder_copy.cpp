#include "library/folder_copy.h"

#include <algorithm>
#include <source_location>
#include <utility>

#include "core/fault.h"
#include "core/text.h"
#include "disk/leftovers.h"
#include "disk/presence.h"
#include "library/board_file.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// Libraries hold their boards themselves; deeper than this is no library but a mistake.
constexpr int kDeepestFolder = 32;
/// The staging folder's own folder for files that are replaced; no library's name begins so.
constexpr const char* kReplaced = ".replaced";

void ThrowIf(std::error_code failure, const fs::path& path,
             std::source_location where = std::source_location::current()) {
  if (failure) throw Fault::OfFile(failure, PathText(path), where);
}

/// The name that a library needs for the board file `name`, whose ending may be in another letter
/// case. Empty when the name is right already, or is not that of a board.
std::string BoardNameFor(const std::string& name) {
  constexpr std::size_t kDigits = 3;
  const std::string board = name.substr(0, kDigits) + ".txt";
  const bool meant = EqualNoCase(name, board) && BoardNumberOfFile(board) != 0;
  return meant && name != board ? board : std::string();
}

/// A failure does not matter: the disk may know no such mark.
void MarkReadOnly(const fs::path& file) {
  constexpr auto kWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  std::error_code ignored;
  fs::permissions(file, kWrite, fs::perm_options::remove, ignored);
}

/// Moves a whole file, also to another disk.
void MoveFile(const fs::path& from, const fs::path& to, UnflushedFolders& unflushed) {
  std::error_code failure = RenameOver(from, to);
  if (failure == std::errc::cross_device_link) {
    CopyWholeFile(from, to, unflushed, [] { return true; });
    fs::remove(from, failure);
  }
  ThrowIf(failure, to);
  unflushed.Add(to.parent_path());
}

}  // namespace

bool SameFolder(const fs::path& a, const fs::path& b) {
  if (a == b) return true;
  return FolderExists(a) && FolderExists(b) && fs::equivalent(a, b);
}

bool FolderLiesIn(const fs::path& inner, const fs::path& outer) {
  std::error_code failure;
  fs::path at = fs::weakly_canonical(inner, failure);
  ThrowIf(failure, inner);
  for (; !SameFolder(at, outer); at = at.parent_path()) {
    if (at == at.parent_path()) return false;
  }
  return true;
}

bool FoldersOverlap(const fs::path& a, const fs::path& b) {
  return FolderLiesIn(a, b) || FolderLiesIn(b, a);
}

FolderCopy::FolderCopy(Host& host, fs::path into) : host_(host), into_(std::move(into)) {}

void FolderCopy::Add(const fs::path& from, const std::string& name, FileNames names) {
  items_.push_back({from, name, names, {}, {}});
}

bool FolderCopy::Run() {
  const WorkScope work(host_);
  const auto eachItem = [this](auto procedure) {
    return std::all_of(items_.begin(), items_.end(), procedure);
  };
  try {
    if (eachItem([this](Item& item) { return List(item); })) {
      MakeStaging();
      if (eachItem([this](const Item& item) { return Stage(item); })) {
        unflushed_.Flush();  // while the folders still have the names under which they are known
        PutInPlace();
        return true;
      }
    }
  } catch (...) {
    Undo();
    throw;
  }
  Undo();
  return false;
}

fs::path FolderCopy::Target(const Item& item) const {
  return into_ / PathFromText(item.name);
}

fs::path FolderCopy::Staged(const Item& item) const {
  return staging_ / PathFromText(item.name);
}

bool FolderCopy::Step(const Item& item) {
  return host_.Step("Copying library " + ShownName(item.name), done_, total_);
}

/// Lists what there is to copy, before anything is written.
bool FolderCopy::List(Item& item) {
  if (!FolderExists(item.from)) {
    throw Fault(FaultNumber::PathNotFound, "There is no folder " + ShownPath(item.from));
  }
  if (!ListFolder(item, {}, 0)) return false;
  if (item.names == FileNames::OfBoards) NameAsBoards(item.files);
  CheckTarget(item);
  total_ += static_cast<int>(item.files.size());
  return true;
}

/// Only the folder itself holds boards, not the folders inside it.
void FolderCopy::NameAsBoards(std::vector<File>& files) {
  for (File& file : files) {
    if (file.from.has_parent_path()) continue;
    const fs::path board = PathFromText(BoardNameFor(PathText(file.from)));
    const bool taken = std::any_of(files.begin(), files.end(),
                                   [&board](const File& other) { return other.to == board; });
    if (!board.empty() && !taken) file.to = board;
  }
}

bool FolderCopy::ListFolder(Item& item, const fs::path& relative, int depth) {
  if (depth > kDeepestFolder) {
    throw Fault(FaultNumber::PathFileAccess,
                "There are too many folders in each other: " + ShownPath(item.from / relative));
  }
  if (!host_.Step("Copying library " + ShownName(item.name), 0, 0)) return false;
  item.folders.push_back(relative);
  std::vector<fs::path> inner;
  ForEachEntry(item.from / relative,
               [&](const fs::directory_entry& entry) { TakeEntry(item, entry, relative, inner); });
  return std::all_of(inner.begin(), inner.end(),
                     [&](const fs::path& folder) { return ListFolder(item, folder, depth + 1); });
}

void FolderCopy::TakeEntry(Item& item, const fs::directory_entry& entry, const fs::path& relative,
                           std::vector<fs::path>& inner) {
  std::error_code failure;
  const fs::file_status status = entry.symlink_status(failure);
  const fs::path path = relative / entry.path().filename();
  switch (status.type()) {
    case fs::file_type::directory:
      inner.push_back(path);
      break;
    case fs::file_type::regular:
      item.files.push_back({path, path});
      break;
    case fs::file_type::not_found:  // it has gone since
      break;
    case fs::file_type::none:
      ThrowIf(failure, entry.path());
      break;
    default:
      ++leftOut_;
  }
}

/// What is in the way is found before anything is written, too.
void FolderCopy::CheckTarget(Item& item) const {
  const fs::path target = Target(item);
  item.exists = FolderExists(target);
  if (!item.exists) {
    if (!IsTaken(target)) return;
    throw Fault(FaultNumber::PathFileAccess, "Not a folder: " + ShownPath(target));
  }
  for (const fs::path& folder : item.folders) {
    const fs::path to = target / folder;
    if (folder.empty() || !IsTaken(to)) continue;
    if (fs::is_directory(fs::symlink_status(to))) continue;
    throw Fault(FaultNumber::PathFileAccess, "Not a folder: " + ShownPath(to));
  }
  for (const File& file : item.files) {
    const fs::path to = target / file.to;
    if (!IsTaken(to)) continue;
    if (!fs::is_regular_file(fs::symlink_status(to))) {
      throw Fault(FaultNumber::PathFileAccess, "Not a file: " + ShownPath(to));
    }
    if (IsReadOnly(to)) {
      throw Fault(FaultNumber::PermissionDenied, "The file is read only: " + ShownPath(to));
    }
  }
}

/// Makes a folder that must not be there yet.
void FolderCopy::MakeFolder(const fs::path& folder) {
  std::error_code failure;
  if (!fs::create_directory(folder, failure) && !failure) {
    failure = std::make_error_code(std::errc::file_exists);
  }
  ThrowIf(failure, folder);
  unflushed_.Add(folder.parent_path());
}

void FolderCopy::MakeStaging() {
  std::vector<fs::path> missing;
  for (fs::path at = into_; !at.empty() && !IsTaken(at) && at != at.parent_path();
       at = at.parent_path()) {
    missing.push_back(at);
  }
  for (; !missing.empty(); missing.pop_back()) {
    MakeFolder(missing.back());
    madeAbove_.push_back(missing.back());
  }
  SweepLeftovers(host_, into_);
  // A process of this number may have had the name before, and not have been swept.
  while (staging_.empty()) {
    const fs::path path = into_ / NewFolderName();
    if (IsTaken(path)) continue;
    MakeFolder(path);
    staging_ = path;
  }
}

bool FolderCopy::Stage(const Item& item) {
  for (const fs::path& folder : item.folders) {
    // Names that differ may be one to this disk, and so be taken.
    MakeFolder(folder.empty() ? Staged(item) : Staged(item) / folder);
  }
  return std::all_of(item.files.begin(), item.files.end(),
                     [&](const File& file) { return StageFile(item, file); });
}

bool FolderCopy::StageFile(const Item& item, const File& file) {
  const fs::path from = item.from / file.from;
  const fs::path to = Staged(item) / file.to;
  try {
    if (!CopyWholeFile(from, to, unflushed_, [&] { return Step(item); })) return false;
    if (IsReadOnly(from)) MarkReadOnly(to);
  } catch (const Fault&) {
    // A file that another program has removed meanwhile is no failure; a whole folder is.
    if (IsTaken(from) || !FolderExists(from.parent_path())) throw;
  }
  ++done_;
  return Step(item);
}

void FolderCopy::PutInPlace() {
  for (const Item& item : items_) {
    if (item.exists) continue;
    if (IsTaken(Target(item))) {
      ThrowIf(std::make_error_code(std::errc::file_exists), Target(item));
    }
    Put(Staged(item), Target(item));
  }
  for (const Item& item : items_) {
    if (item.exists) Merge(item);
  }
  unflushed_.Flush();
  // All that is left in it is empty folders and what was replaced.
  std::error_code ignored;
  fs::remove_all(staging_, ignored);
}

void FolderCopy::Merge(const Item& item) {
  for (const fs::path& folder : item.folders) {
    if (folder.empty()) continue;
    const fs::path made = Target(item) / folder;
    if (FolderExists(made)) continue;
    MakeFolder(made);
    madeInside_.push_back(made);
  }
  for (const File& file : item.files) {
    const fs::path target = Target(item) / file.to;
    if (!IsTaken(Staged(item) / file.to)) continue;  // it had vanished
    if (IsTaken(target)) KeepReplaced(target);
    Put(Staged(item) / file.to, target);
  }
}

/// Keeps a file until the copy is complete. By a second link, where the disk has links: the file is
/// then never missing from its place.
void FolderCopy::KeepReplaced(const fs::path& file) {
  std::error_code failure;
  fs::create_directory(staging_ / kReplaced, failure);
  ThrowIf(failure, staging_ / kReplaced);
  const fs::path kept = staging_ / kReplaced / std::to_string(replaced_++);
  fs::create_hard_link(file, kept, failure);
  if (failure) CopyWholeFile(file, kept, unflushed_, [] { return true; });
  placed_.push_back({kept, file});
}

void FolderCopy::Put(const fs::path& from, const fs::path& to) {
  MoveFile(from, to, unflushed_);
  placed_.push_back({to, from});
}

/// Takes back what has been put in place, the last first.
void FolderCopy::PutBack() {
  for (; !placed_.empty(); placed_.pop_back()) {
    try {
      MoveFile(placed_.back().at, placed_.back().back, unflushed_);
    } catch (const Fault& fault) {
      host_.TellError("Unable to undo the copy: " + fault.Description());
    }
  }
  std::error_code ignored;
  for (; !madeInside_.empty(); madeInside_.pop_back()) {
    fs::remove(madeInside_.back(), ignored);  // only when it is empty
  }
}

void FolderCopy::Undo() {
  PutBack();
  std::error_code ignored;
  if (!staging_.empty()) {
    fs::remove(staging_ / kReplaced, ignored);  // only when it is empty
    fs::remove(staging_, ignored);              // likewise
    if (fs::exists(staging_, ignored) && !host_.Recycle(staging_)) {
      host_.TellError("Unable to send the incomplete copy to the recycle bin:\n" +
                      ShownPath(staging_));
    }
  }
  for (; !madeAbove_.empty(); madeAbove_.pop_back()) {
    fs::remove(madeAbove_.back(), ignored);  // only when it is empty
  }
}

}  // namespace tricklet
