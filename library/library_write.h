// Changes to the files of a library: by one program at a time, and lasting.
#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "disk/file_io.h"
#include "disk/write_lock.h"
#include "library/replaced_boards.h"
#include "library/session.h"

namespace tricklet {

/// Holds a library's write lock, that of the current one unless its folder is given, and knows
/// which folders are still to be flushed. One may be begun while another of the same session lives.
class LibraryWrite {
 public:
  /// Nothing, after a message, when another program is changing the library and does not finish
  /// soon. Else what a killed program has left in it is swept away.
  static std::optional<LibraryWrite> Begin(Session& session);
  static std::optional<LibraryWrite> Begin(Session& session, const std::filesystem::path& library);
  /// `Begin` for a caller that has its own way to tell: the message comes in `busy`.
  static std::optional<LibraryWrite> Begin(Session& session, std::string& busy);
  /// Begins unless another program is changing the library just now; says nothing.
  static std::optional<LibraryWrite> BeginAtOnce(Session& session);

  LibraryWrite(LibraryWrite&&) noexcept = default;
  LibraryWrite& operator=(LibraryWrite&&) = delete;
  LibraryWrite(const LibraryWrite&) = delete;
  LibraryWrite& operator=(const LibraryWrite&) = delete;
  /// Flushes what has not been; a failure of that is not told.
  ~LibraryWrite();

  /// The library's folder.
  const std::filesystem::path& Library() const { return library_; }

  void Replace(const std::filesystem::path& file, std::string_view data);
  /// Takes away a file whose content stands elsewhere by now. Throws `Fault`.
  void Remove(const std::filesystem::path& file);

  /// From now on what `Replace` and `Remove` take away is kept for the recycle bin, where the
  /// settings say so. `command` is as `ReplacedBoards` has it.
  void KeepReplaced(const Session& session, const std::string& command);
  /// The same whatever the settings say: for a command that could not be carried out safely
  /// without.
  void KeepReplaced(const std::string& command) { replaced_.emplace(library_, command); }
  /// Sends it there. To be called before `Finish`. Empty, or what to tell the person when the bin
  /// does not take it. Throws `Fault`.
  std::string RecycleReplaced(Host& host);

  /// For what puts files into the library by itself.
  UnflushedFolders& Unflushed() { return unflushed_; }
  /// All that was written outlasts a power cut. To be called before anyone is told that it is done.
  /// Throws `Fault`.
  void Finish() { unflushed_.Flush(); }

 private:
  LibraryWrite(std::filesystem::path library, std::shared_ptr<WriteLock> lock)
      : library_(std::move(library)), lock_(std::move(lock)) {}
  static std::optional<LibraryWrite> Wait(Session& session, const std::filesystem::path& folder,
                                          std::chrono::milliseconds patience, std::string& holder);

  std::filesystem::path library_;
  std::shared_ptr<WriteLock> lock_;
  UnflushedFolders unflushed_;
  std::optional<ReplacedBoards> replaced_;
};

/// "The library NAME is being changed by PROGRAM": `holder` as `WriteLock::Take` gives it.
std::string BusyText(const std::string& library, const std::string& holder);

/// Nobody is changing the library of this folder; else tells who. For what moves the folder itself,
/// which no lock inside it can outlast.
bool RequireUnused(Host& host, const std::filesystem::path& folder);

}  // namespace tricklet
