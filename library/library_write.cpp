#include "library/library_write.h"

#include "core/fault.h"
#include "core/text.h"
#include "disk/leftovers.h"

namespace tricklet {

namespace fs = std::filesystem;

std::optional<LibraryWrite> LibraryWrite::Wait(Session& session, const fs::path& folder,
                                               std::chrono::milliseconds patience,
                                               std::string& holder) {
  WriteState& state = session.writing;
  if (auto held = state.lock.lock(); held && state.folder == folder)
    return LibraryWrite(folder, held);
  std::shared_ptr<WriteLock> lock = WriteLock::Take(folder, patience, holder);
  if (!lock) return std::nullopt;
  if (state.folder != folder) {
    SweepLeftovers(session.host, folder);
    SweepReplaced(session.host, folder);
  }
  state.folder = folder;
  state.lock = lock;
  return LibraryWrite(folder, std::move(lock));
}

std::optional<LibraryWrite> LibraryWrite::Begin(Session& session) {
  return Begin(session, session.LibraryPath());
}

std::optional<LibraryWrite> LibraryWrite::Begin(Session& session, const fs::path& library) {
  std::string holder;
  auto write = Wait(session, library, WriteLock::kPatience, holder);
  if (!write) session.host.TellError(BusyText(PathText(library.filename()), holder));
  return write;
}

std::optional<LibraryWrite> LibraryWrite::Begin(Session& session, std::string& busy) {
  std::string holder;
  auto write = Wait(session, session.LibraryPath(), WriteLock::kPatience, holder);
  if (!write) busy = BusyText(session.LibraryName(), holder);
  return write;
}

std::optional<LibraryWrite> LibraryWrite::BeginAtOnce(Session& session) {
  std::string holder;
  return Wait(session, session.LibraryPath(), std::chrono::milliseconds(0), holder);
}

LibraryWrite::~LibraryWrite() {
  try {
    Finish();
  } catch (const Fault&) {
    // Whoever wanted to know has called Finish.
  }
}

void LibraryWrite::Replace(const fs::path& file, std::string_view data) {
  if (replaced_) replaced_->Keep(file, data);
  ReplaceWholeFile(file, data, unflushed_);
}

void LibraryWrite::Remove(const fs::path& file) {
  if (replaced_) replaced_->Keep(file, {});
  std::error_code failure;
  fs::remove(file, failure);
  if (failure) throw Fault::OfFile(failure, PathText(file));
  unflushed_.Add(library_);
}

void LibraryWrite::KeepReplaced(const Session& session, const std::string& command) {
  if (session.settings.recycleReplaced) KeepReplaced(command);
}

std::string LibraryWrite::RecycleReplaced(Host& host) {
  return replaced_ ? replaced_->Recycle(host, unflushed_) : std::string();
}

std::string BusyText(const std::string& library, const std::string& holder) {
  return "The library " + ShownName(library) + " is being changed by " + holder +
         "\nPlease try again when it has finished";
}

bool RequireUnused(Host& host, const fs::path& folder) {
  std::string holder;
  if (WriteLock::Take(folder, WriteLock::kPatience, holder)) return true;
  host.TellError(BusyText(ShownPath(folder.filename()), holder));
  return false;
}

}  // namespace tricklet
