#include "library/replaced_boards.h"

#include <source_location>
#include <system_error>
#include <utility>
#include <vector>

#include "core/fault.h"
#include "core/text.h"
#include "disk/leftovers.h"
#include "disk/presence.h"
#include "library/dated_folder.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

void ThrowIf(std::error_code failure, const fs::path& path,
             std::source_location where = std::source_location::current()) {
  if (failure) throw Fault::OfFile(failure, PathText(path), where);
}

/// What cannot be read is taken for something else.
bool Holds(const fs::path& file, std::string_view data) {
  try {
    std::error_code failure;
    return fs::file_size(file, failure) == data.size() && !failure &&
           ReadWholeFile(file, data.size()) == data;
  } catch (const Fault&) {
    return false;
  }
}

/// A second link to the file. False where it is a link itself, which would lead to what replaces
/// it, or where the disk has no links.
bool Link(const fs::path& file, const fs::path& to) {
  std::error_code failure;
  if (fs::is_symlink(fs::symlink_status(file, failure)) || failure) return false;
  fs::create_hard_link(file, to, failure);
  return !failure;
}

/// Sends the folders in `hidden` to the bin. The path of one that stays; empty when none does.
fs::path RecycleAll(Host& host, const fs::path& hidden, UnflushedFolders& unflushed) {
  std::vector<fs::path> folders;
  ForEachEntry(hidden, [&](const fs::directory_entry& entry) { folders.push_back(entry.path()); });
  fs::path stays;
  for (const fs::path& kept : folders) {
    const fs::path folder =
        BringBeside(hidden.parent_path(), kept, PathText(kept.filename()), unflushed);
    if (!host.Recycle(folder)) stays = folder;
  }
  std::error_code ignored;
  fs::remove(hidden, ignored);  // only when it is empty
  unflushed.Add(hidden.parent_path());
  return stays;
}

}  // namespace

ReplacedBoards::ReplacedBoards(fs::path library, std::string command)
    : library_(std::move(library)), command_(std::move(command)) {}

void ReplacedBoards::MakeFolder() {
  if (!kept_.empty()) return;
  // A process of this number may have had the name before, and not have been swept.
  fs::path hidden = library_ / NewKeptName();
  while (IsTaken(hidden)) hidden = library_ / NewKeptName();
  const fs::path kept =
      hidden / PathFromText(DatedName(PathText(library_.filename()), "before " + command_));
  std::error_code failure;
  fs::create_directory(hidden, failure);
  ThrowIf(failure, hidden);
  hidden_ = hidden;
  fs::create_directory(kept, failure);
  ThrowIf(failure, kept);
  kept_ = kept;
}

void ReplacedBoards::Keep(const fs::path& file, std::string_view data) {
  if (settled_.contains(file)) return;
  if (FileExists(file)) {
    if (Holds(file, data)) return;
    MakeFolder();
    const fs::path to = kept_ / file.filename();
    // Linking and replacing reach the disk in this order, so one flush at the end is enough. A copy
    // has to be there first.
    if (!Link(file, to)) {
      std::error_code failure;
      const fs::path real = fs::canonical(file, failure);
      ThrowIf(failure, file);
      CopyWholeFile(real, to, unflushed_, [] { return true; });
      unflushed_.Add(hidden_);
      unflushed_.Add(library_);
      unflushed_.Flush();
    }
  }
  settled_.insert(file);
}

std::string ReplacedBoards::Recycle(Host& host, UnflushedFolders& unflushed) {
  if (hidden_.empty()) return {};
  if (!kept_.empty()) FlushFolder(kept_);
  const fs::path hidden = std::exchange(hidden_, {});
  kept_.clear();
  const fs::path stays = RecycleAll(host, hidden, unflushed);
  if (stays.empty()) return {};
  return "The boards that were replaced could not be sent to the recycle bin.\nThey are kept in "
         "the folder\n" +
         ShownPath(stays);
}

void SweepReplaced(Host& host, const fs::path& library) {
  for (const fs::path& hidden : LeftKept(library)) {
    try {
      UnflushedFolders unflushed;
      RecycleAll(host, hidden, unflushed);
      unflushed.Flush();
    } catch (const Fault&) {
      // It stays for the next one.
    }
  }
}

}  // namespace tricklet
