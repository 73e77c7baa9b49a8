// The import commands.
#pragma once

#include <filesystem>
#include <string_view>

#include "formats/exchange/import_outcome.h"
#include "library/session.h"

namespace tricklet {

/// `mnuImport`: asks about unsaved changes and about overwriting, lets the person choose a
/// hand-record file (pbn, dlm or xml), and stores its boards in the current library.
ImportOutcome Import(Session& session);

/// `mnuImport` for a file already named (dropped on the window, given on the command line). Refused
/// with a message when its name ends in none of the three types.
ImportOutcome ImportFile(Session& session, const std::filesystem::path& path);

/// `mnuImportLin`: as `Import`, for a LIN file. The records themselves go to "LIN.txt", where they
/// replace earlier records of the same boards. Records of other boards stay, and if there are any,
/// so do the names and the scoring.
ImportOutcome ImportLin(Session& session);

/// `mnuImportLin` for a file already named. Refused with a message when its name does not end in
/// "lin".
ImportOutcome ImportLinFile(Session& session, const std::filesystem::path& path);

/// `mnuImportLin` for a text: pasted records, or the address of a page that shows some. Refused
/// with a message, before any question, when it holds none.
ImportOutcome ImportLinText(Session& session, std::string_view text);

/// A file dropped on the window or given to it, of any type that can be imported.
ImportOutcome ImportAnyFile(Session& session, const std::filesystem::path& path);

}  // namespace tricklet
