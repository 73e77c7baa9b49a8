// The export command.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "library/session.h"

namespace tricklet {

/// What `frmExport` asks for.
struct ExportRange {
  int first = 0;
  int last = 0;      ///< 0: the dialog was cancelled
  std::string type;  ///< "pbn", "dlm" or "lin"
};

/// The types that can be written, in the order of `optType`.
const std::vector<std::string>& ExportTypes();

/// True when the current library holds a board; else tells "There are no hands to export".
bool HasHandsToExport(Session& session);

/// Reads the two texts of `frmExport` into `range`. False when they are not a range within 1..999:
/// tells "Please enter a valid range" and leaves `range` alone.
bool CheckRangeTexts(Session& session, std::string_view from, std::string_view to,
                     ExportRange& range);

/// True when every board of the range has its file; else tells which are missing.
bool CheckExportRange(Session& session, const ExportRange& range);

/// The file name to offer first: `last` with its ending replaced by `type`.
std::filesystem::path SuggestedExportPath(const std::filesystem::path& last,
                                          const std::string& type);

/// After the dialog: checks the range, lets the person choose the file (starting from `path`, which
/// takes the choice or becomes empty) and writes it. True when all boards were written.
bool Export(Session& session, const ExportRange& range, std::filesystem::path& path);

/// Writes the range to a file already named; its ending selects the format. True when all boards
/// were written; else tells which were not. When the person cancels, the boards until then are
/// written; where that would replace a file, they are put beside it ("boards (part).pbn"), and the
/// person is asked whether they are to replace it. A board that the disk does not give is reported,
/// and nothing is written.
bool ExportFile(Session& session, const ExportRange& range, const std::filesystem::path& path);

}  // namespace tricklet
