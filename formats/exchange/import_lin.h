// The import of LIN records, beside that of the other hand-record files.
#pragma once

#include <filesystem>
#include <string_view>

#include "formats/exchange/import.h"

namespace tricklet {

/// `mnuImportLin`: asks about unsaved changes and about overwriting, lets the person choose a LIN
/// file and stores its boards in the current library, with the records themselves in "LIN.txt". The
/// records of boards that are not stored now stay there, and then so do the names and the scoring.
ImportOutcome ImportLin(Session& session);

/// The same for a file already named; told so when its name does not end in "lin".
ImportOutcome ImportLinFile(Session& session, const std::filesystem::path& path);

/// The same for a text: pasted records, or the address of a page that shows some. Told so, and
/// nothing asked, when it holds none.
ImportOutcome ImportLinText(Session& session, std::string_view text);

/// A file dropped on the window or given to it, of any type that can be imported.
ImportOutcome ImportAnyFile(Session& session, const std::filesystem::path& path);

}  // namespace tricklet
