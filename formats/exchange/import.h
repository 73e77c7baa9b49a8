// The import command.
#pragma once

#include <filesystem>

#include "library/session.h"

namespace tricklet {

/// How an import ended.
struct ImportOutcome {
  int boardsSaved = 0;
  bool refused = false;    ///< by the person or because of the file's type: nothing was read
  bool cancelled = false;  ///< in mid-run
  bool failed = false;     ///< the file could not be read, or not to its end
};

/// `mnuImport`: asks about unsaved changes and about overwriting, lets the person choose a
/// hand-record file, and stores its boards in the current library.
ImportOutcome Import(Session& session);

/// The same for a file already named (dropped on the window, given on the command line).
ImportOutcome ImportFile(Session& session, const std::filesystem::path& path);

}  // namespace tricklet
