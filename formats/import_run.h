// What every import command does around its reader: the questions before, storing the boards with
// progress and Cancel, the messages after.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "formats/board_sink.h"
#include "formats/import.h"

namespace tricklet {

/// Reads the boards of a text, which it may use up, into a sink. What it throws is reported and
/// ends the import.
using TextReader = std::function<ReadResult(std::string text, BoardSink& sink)>;

/// The questions about unsaved changes and about overwriting, before any file is touched. False
/// when the person said no; the board is then as it is stored, or still has its changes.
bool MayImport(Session& session);

/// Stores the boards of a file in the current library, tells how it went and shows the first.
ImportOutcome StoreFile(Session& session, const std::filesystem::path& path,
                        const TextReader& reader);

/// The same for a text at hand; `unreadable` is what is told when the reader throws.
ImportOutcome StoreText(Session& session, std::string text, const std::string& unreadable,
                        const TextReader& reader);

}  // namespace tricklet
