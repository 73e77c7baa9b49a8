// What a command replaces goes to the recycle bin, all of it in one folder.
#pragma once

#include <filesystem>
#include <set>
#include <string>

#include "core/host.h"
#include "disk/file_io.h"

namespace tricklet {

/// The files that one command replaces in a library. Each is kept in a hidden folder there before
/// another takes its place, and the command ends by sending them to the recycle bin as a folder
/// named like "Club 2026-11-22 10.31 before import". At any moment an old file is in its place, in
/// the hidden folder, or in the bin; what a killed program has kept is sent there by the next one
/// that changes the library (`SweepReplaced`).
///
/// The folder goes to the bin from the libraries' root, so that one who restores it finds the old
/// boards there as a library. A bin that takes nothing, as on many sticks and network drives, does
/// not undo the command: whoever asked for new boards has them, and has the old ones in that
/// library.
class ReplacedBoards {
 public:
  /// `library` is the library's folder; `command` ends the name: "import".
  ReplacedBoards(std::filesystem::path library, std::string command);

  /// Keeps the file, unless this command has made it or it holds `data` already. To be called
  /// before `data` takes its place. Throws `Fault`, and then nothing may take its place.
  void Keep(const std::filesystem::path& file, std::string_view data);

  /// Sends what was kept to the recycle bin. Empty, or what to tell the person: where the files are
  /// when the bin does not take them. Folders whose names have changed are added to `unflushed`.
  /// Throws `Fault`; the files then stay in the hidden folder.
  std::string Recycle(Host& host, UnflushedFolders& unflushed);

 private:
  void MakeFolder();

  std::filesystem::path library_;
  std::string command_;
  std::filesystem::path hidden_;  // empty until it has been made
  std::filesystem::path kept_;    // in it, under the name for the bin
  UnflushedFolders unflushed_;
  std::set<std::filesystem::path> settled_;  // files that were kept, and files of the command's own
};

/// Sends to the recycle bin what programs that are gone have kept of this library. What cannot be
/// sent stays in the libraries' root, as `ReplacedBoards` has it.
void SweepReplaced(Host& host, const std::filesystem::path& library);

}  // namespace tricklet
