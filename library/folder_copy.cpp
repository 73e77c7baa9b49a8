#include "library/folder_copy.h"

#include <algorithm>
#include <utility>

#include "core/fault.h"
#include "core/text.h"
#include "library/file_io.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// Libraries hold their boards themselves; deeper than this is no library but a mistake.
constexpr int kDeepestFolder = 32;

void ThrowIf(std::error_code failure, const fs::path& path) {
  if (failure) throw Fault::OfFile(failure, PathText(path));
}

bool IsFolder(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored);
}

/// Something of this name is there, if only a link to nothing.
bool IsTaken(const fs::path& path) {
  std::error_code ignored;
  return fs::exists(fs::symlink_status(path, ignored));
}

/// From one place to another, whole, also where that is another disk.
void MoveFile(const fs::path& from, const fs::path& to) {
  std::error_code failure;
  fs::rename(from, to, failure);
  if (failure == std::errc::cross_device_link) {
    CopyWholeFile(from, to, [] { return true; });
    fs::remove(from, failure);
  }
  ThrowIf(failure, to);
}

}  // namespace

bool FolderLiesIn(const fs::path& inner, const fs::path& outer) {
  std::error_code failure;
  for (fs::path at = fs::weakly_canonical(inner, failure); !failure; at = at.parent_path()) {
    std::error_code missing;
    if (fs::equivalent(at, outer, missing) && !missing) return true;
    if (at == at.parent_path()) return false;
  }
  return false;
}

bool FoldersOverlap(const fs::path& a, const fs::path& b) {
  return FolderLiesIn(a, b) || FolderLiesIn(b, a);
}

FolderCopy::FolderCopy(Host& host, fs::path into) : host_(host), into_(std::move(into)) {}

void FolderCopy::Add(const fs::path& from, const std::string& name) {
  items_.push_back({from, name, {}, {}});
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
  return host_.Step("Copying library " + item.name, done_, total_);
}

/// What there is to copy, before anything is written.
bool FolderCopy::List(Item& item) {
  if (!IsFolder(item.from)) {
    throw Fault(FaultNumber::PathNotFound, "There is no folder " + PathText(item.from));
  }
  if (!ListFolder(item, {}, 0)) return false;
  CheckTarget(item);
  total_ += static_cast<int>(item.files.size());
  return true;
}

bool FolderCopy::ListFolder(Item& item, const fs::path& relative, int depth) {
  if (depth > kDeepestFolder) {
    throw Fault(FaultNumber::PathFileAccess,
                "There are too many folders in each other: " + PathText(item.from / relative));
  }
  if (!host_.Step("Copying library " + item.name, 0, 0)) return false;
  item.folders.push_back(relative);
  std::vector<fs::path> inner;
  std::error_code failure;
  fs::directory_iterator entry(item.from / relative, failure);
  for (const fs::directory_iterator end; !failure && entry != end; entry.increment(failure)) {
    std::error_code gone;  // what is gone by now is not copied
    const fs::file_status status = entry->symlink_status(gone);
    const fs::path path = relative / entry->path().filename();
    if (fs::is_directory(status)) {
      inner.push_back(path);
    } else if (fs::is_regular_file(status)) {
      item.files.push_back(path);
    } else if (!gone) {
      ++leftOut_;
    }
  }
  ThrowIf(failure, item.from / relative);
  return std::all_of(inner.begin(), inner.end(),
                     [&](const fs::path& folder) { return ListFolder(item, folder, depth + 1); });
}

/// What is in the way is found before anything is written, too.
void FolderCopy::CheckTarget(Item& item) const {
  const fs::path target = Target(item);
  item.exists = IsFolder(target);
  if (!item.exists) {
    if (!IsTaken(target)) return;
    throw Fault(FaultNumber::PathFileAccess, "Not a folder: " + PathText(target));
  }
  for (const fs::path& folder : item.folders) {
    std::error_code ignored;
    const fs::file_status status = fs::symlink_status(target / folder, ignored);
    if (folder.empty() || !fs::exists(status) || fs::is_directory(status)) continue;
    throw Fault(FaultNumber::PathFileAccess, "Not a folder: " + PathText(target / folder));
  }
  for (const fs::path& file : item.files) {
    std::error_code ignored;
    if (!IsTaken(target / file)) continue;
    if (!fs::is_regular_file(target / file, ignored)) {
      throw Fault(FaultNumber::PathFileAccess, "Not a file: " + PathText(target / file));
    }
    if (IsReadOnly(target / file)) {
      throw Fault(FaultNumber::PermissionDenied,
                  "The file is read only: " + PathText(target / file));
    }
  }
}

void FolderCopy::MakeStaging() {
  std::error_code failure;
  std::vector<fs::path> missing;
  for (fs::path at = into_; !at.empty() && !IsTaken(at) && at != at.parent_path();
       at = at.parent_path()) {
    missing.push_back(at);
  }
  for (; !missing.empty(); missing.pop_back()) {
    if (fs::create_directory(missing.back(), failure)) madeAbove_.push_back(missing.back());
    ThrowIf(failure, missing.back());
  }
  // A name of its own, also beside what a program that was killed has left.
  for (int number = 1; staging_.empty(); ++number) {
    const fs::path path = into_ / (".tricklet-copy-" + std::to_string(number));
    if (fs::create_directory(path, failure)) staging_ = path;
    ThrowIf(IsFolder(path) ? std::error_code() : failure, path);
  }
}

bool FolderCopy::Stage(const Item& item) {
  for (const fs::path& folder : item.folders) {
    std::error_code failure;
    const fs::path made = folder.empty() ? Staged(item) : Staged(item) / folder;
    if (!fs::create_directory(made, failure) && !failure) {
      failure = std::make_error_code(std::errc::file_exists);  // names that are one to this disk
    }
    ThrowIf(failure, made);
  }
  return std::all_of(item.files.begin(), item.files.end(),
                     [&](const fs::path& file) { return StageFile(item, file); });
}

bool FolderCopy::StageFile(const Item& item, const fs::path& relative) {
  const fs::path from = item.from / relative;
  try {
    if (!CopyWholeFile(from, Staged(item) / relative, [&] { return Step(item); })) return false;
  } catch (const Fault&) {
    // A file that another program has removed meanwhile is no failure; a whole folder is.
    if (IsTaken(from) || !IsFolder(from.parent_path())) throw;
  }
  ++done_;
  return Step(item);
}

void FolderCopy::PutInPlace() {
  for (const Item& item : items_) {
    if (item.exists) continue;
    std::error_code failure;
    if (IsTaken(Target(item))) {
      failure = std::make_error_code(std::errc::file_exists);
    } else {
      fs::rename(Staged(item), Target(item), failure);
    }
    ThrowIf(failure, Target(item));
    placed_.push_back(&item);
  }
  for (const Item& item : items_) {
    if (item.exists) Merge(item);
  }
  std::error_code ignored;
  fs::remove(staging_, ignored);
}

void FolderCopy::Merge(const Item& item) {
  for (const fs::path& folder : item.folders) {
    if (folder.empty()) continue;
    std::error_code failure;
    fs::create_directory(Target(item) / folder, failure);
    ThrowIf(failure, Target(item) / folder);
  }
  for (const fs::path& file : item.files) {
    if (IsTaken(Staged(item) / file)) MoveFile(Staged(item) / file, Target(item) / file);
  }
  std::error_code ignored;
  for (auto folder = item.folders.rbegin(); folder != item.folders.rend(); ++folder) {
    fs::remove(folder->empty() ? Staged(item) : Staged(item) / *folder, ignored);
  }
}

void FolderCopy::Undo() {
  std::error_code ignored;
  for (const Item* item : placed_) fs::rename(Target(*item), Staged(*item), ignored);
  placed_.clear();
  if (!staging_.empty()) {
    fs::remove(staging_, ignored);  // only when it is empty
    if (IsTaken(staging_) && !host_.Recycle(staging_)) {
      host_.Tell("Unable to send the incomplete copy to the recycle bin:\n" + PathText(staging_));
    }
  }
  for (; !madeAbove_.empty(); madeAbove_.pop_back()) {
    fs::remove(madeAbove_.back(), ignored);  // only when it is empty
  }
}

}  // namespace tricklet
