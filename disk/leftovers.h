// Files and folders that the program makes on the way to what was asked for. Each bears the number
// of its process, so that what a killed program has left is known from what one is working on.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/host.h"

namespace tricklet {

/// ".tricklet-PROCESS-N.new", a name for a file that is to be put in its place when complete.
std::string NewFileName();

/// ".tricklet-copy-PROCESS-N", a name for a folder of things on their way.
std::string NewFolderName();

/// ".tricklet-kept-PROCESS-N", a name for a folder of files that are being replaced.
std::string NewKeptName();

/// ".tricklet-draft-PROCESS-N", a name for a folder of what has not been saved. It is no leftover:
/// it stays until somebody has decided about it.
std::string NewDraftName();

/// A folder with a name by `NewDraftName`, and the process that made it.
struct DraftFolder {
  std::filesystem::path path;
  int process = 0;
};
/// Those in `folder`; what cannot be listed holds none.
std::vector<DraftFolder> DraftFoldersIn(const std::filesystem::path& folder);

/// The name is one that the program gives to what is not complete, or to its lock. No such thing is
/// listed or copied.
bool IsOwnName(std::string_view name);

/// Folders in `folder` that have a name by `NewKeptName` and whose process is gone.
std::vector<std::filesystem::path> LeftKept(const std::filesystem::path& folder);

/// Removes incomplete files from the folder whose process is gone. What cannot be removed stays.
void SweepFiles(const std::filesystem::path& folder);

/// Removes incomplete files from the folder whose process is gone; an incomplete copy of a folder
/// goes to the recycle bin, as it may hold files that were being replaced. What cannot be removed
/// stays, and so does what `LeftKept` finds.
void SweepLeftovers(Host& host, const std::filesystem::path& folder);

}  // namespace tricklet
