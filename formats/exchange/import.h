// The import commands.
//
// Each reads the whole file first. Where storing it would lose or alter something, `look` decides
// what to do; without one, and where nothing would be lost, the boards are stored as their file has
// them.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "formats/exchange/import_outcome.h"
#include "formats/exchange/look_at.h"
#include "library/session.h"

namespace tricklet {

/// `mnuImport`: asks about unsaved changes and about overwriting, lets the person choose a
/// hand-record file (pbn, dlm or xml), and stores its boards in the current library.
ImportOutcome Import(Session& session, const Looker& look = {});

/// What a look at a file shows, for whom nothing is to be stored; nothing, after a message, when it
/// cannot be read or is of no type that can be imported. `session` has scanned its library.
std::optional<ImportLook> LookAtFile(Session& session, const std::filesystem::path& path);

/// `mnuImport` for a file already named. Refused with a message when its name ends in none of the
/// three types.
ImportOutcome ImportFile(Session& session, const std::filesystem::path& path,
                         const Looker& look = {});

/// `mnuImportLin`: as `Import`, for a LIN file. The records themselves go to "LIN.txt", where they
/// replace earlier records of the same boards. Records of other boards stay, and if there are any,
/// so do the names and the scoring.
ImportOutcome ImportLin(Session& session, const Looker& look = {});

/// `mnuImportLin` for a file already named. Refused with a message when its name does not end in
/// "lin".
ImportOutcome ImportLinFile(Session& session, const std::filesystem::path& path,
                            const Looker& look = {});

/// `mnuImportLin` for a text: pasted records, or the address of a page that shows some. Refused
/// with a message, before any question, when it holds none.
ImportOutcome ImportLinText(Session& session, std::string_view text, const Looker& look = {});

/// A text with hand records of any type, as a file of that type that was chosen; LIN records as
/// `ImportLinText`. Deals that stand in it by themselves, as `ReadTextDeals` finds them, become
/// boards by what `look` decides, and without it as `ImportChoices` has them. Refused with a
/// message, before any question, when there is neither.
ImportOutcome ImportText(Session& session, std::string_view text, const Looker& look = {});

/// `ImportText` finds something in the text.
bool HasHandRecords(std::string_view text);

/// Files of any type that can be imported, which the person chooses; none when they choose none.
std::vector<std::filesystem::path> ChooseHandRecords(Host& host);

/// There is no such file; the person is then told. What cannot be seen is not missing.
bool IsMissing(Host& host, const std::filesystem::path& path);

/// A file dropped on the window or given to it, of any type that can be imported, whatever its name
/// ends in. A missing file is told before anything is asked. Nobody has chosen the open library for
/// it: when that has boards, `look` decides even where nothing else would be lost, and is offered a
/// new library first. Without `look` the ending tells the type, and the questions are those of
/// `mnuImport`.
ImportOutcome ImportAnyFile(Session& session, const std::filesystem::path& path,
                            const Looker& look = {});

}  // namespace tricklet
