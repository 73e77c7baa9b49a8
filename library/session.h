// The state of the running program, and what it needs to reach the person and the settings.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "analysis/solver.h"
#include "core/board.h"
#include "core/host.h"
#include "core/random_source.h"
#include "core/settings.h"

namespace tricklet {

class WriteLock;

/// The library that was changed last, whose lock is shared by all that changes it at the same time.
struct WriteState {
  std::filesystem::path folder;
  std::weak_ptr<WriteLock> lock;
};

/// A board's file as it was when it was last read or stored.
struct SeenFile {
  std::filesystem::path path;        ///< empty when that cannot be told
  std::optional<std::string> bytes;  ///< nothing when there was no file
  friend bool operator==(const SeenFile&, const SeenFile&) = default;
};

/// What is known of the current library from its last scan.
struct LibraryState {
  std::array<bool, kLastBoardNumber + 1> boardPresent{};  ///< by board number
  int boardCount = 0;
  int firstBoard = kLastBoardNumber + 1;  ///< 1000 when the library is empty
  int lastBoard = 0;                      ///< 0 when the library is empty
  int maxBoard = 0;                       ///< number of entries in the list of boards: 1..MaxBoard
};

/// One per program. The window and the command line derive all that they show from it.
struct Session {
  Session(Host& hostToAsk, SettingsStore& storeToUse)
      : host(hostToAsk), store(storeToUse), settings(LoadSettings(storeToUse)) {}

  Host& host;
  SettingsStore& store;
  Settings settings;

  Board board;                            ///< the current board
  SeenFile seenFile;                      ///< the file from which `board` comes, or went to
  int boardsLoaded = 0;                   ///< counts up whenever `board` is loaded afresh
  LibraryState library;                   ///< the current library
  std::vector<std::string> libraryNames;  ///< all libraries of the root, in the order of the list
  int libIndex = -1;                      ///< the current library's position in it, -1 when none

  /// The only one of the program. Seeded by the system, unless a seed is given at the start.
  RandomSource random;

  std::string copyLibrary;  ///< where the board to paste comes from; empty when none was copied
  int copyBoard = 0;

  /// The double-dummy solver, loaded when it is first asked for; empty where none is to be used.
  std::function<Solver&()> getSolver;
  /// A missing table is not computed while a board is loaded but later, by the window's worker.
  bool tablesInBackground = false;

  WriteState writing;

  /// An import, export or the like is running: nothing is asked about unsaved changes.
  bool batchRunning = false;

  const std::string& LibraryName() const { return settings.library; }
  /// Its name in texts for the person.
  std::string ShownLibrary() const;
  /// The root of all libraries.
  std::filesystem::path FileLocation() const;
  /// The current library's folder.
  std::filesystem::path LibraryPath() const;
  /// The file of a board of the current library.
  std::filesystem::path BoardPath(int boardNumber) const;
};

/// Tells, at the start, when the stored settings could not be read, and why.
void TellUnreadSettings(Session& session);

/// Brings to the disk what has been written to the store. False, after a message, when that failed.
bool StoreSettings(Session& session);

/// Stores one setting: `SaveSetting(session, &Settings::autoLaunch)`. False, after a message, when
/// it could not be stored.
template <class Value>
bool SaveSetting(Session& session, Value Settings::*member) {
  SaveSetting(session.settings, EntryOf(member), session.store);
  return StoreSettings(session);
}

/// Restores `batchRunning` however the batch ends.
class BatchScope {
 public:
  explicit BatchScope(Session& session) : session_(session), before_(session.batchRunning) {
    session_.batchRunning = true;
  }
  ~BatchScope() { session_.batchRunning = before_; }
  BatchScope(const BatchScope&) = delete;
  BatchScope& operator=(const BatchScope&) = delete;

 private:
  Session& session_;
  bool before_;
};

/// `path` as text that ends in the platform's separator, as the library root is stored.
std::string FolderText(const std::filesystem::path& path);

/// `path` names a drive (or the whole file system), not a folder of one.
bool IsDriveRoot(const std::filesystem::path& path);

}  // namespace tricklet
