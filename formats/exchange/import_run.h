// What every import command does around its reader: the questions before, storing the boards with
// progress and Cancel, the messages after.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <variant>

#include "formats/exchange/import.h"
#include "formats/sink/board_sink.h"

namespace tricklet {

/// Reads the boards of a text, which it may use up, into a sink. What it throws is reported and
/// ends the import.
using TextReader = std::function<ReadResult(std::string text, BoardSink& sink)>;

/// Reads deals alone. The results that the library keeps are of the deals that it replaces, so
/// "LIN.txt" goes to the recycle bin when the first board is stored.
struct DealReader {
  TextReader read;
};

/// Reads deals with their results, and puts them into "LIN.txt" when its boards are stored: the old
/// file stays until then and is replaced whole, so that there is always one of the two.
struct ResultsReader {
  TextReader read;
};

using RecordReader = std::variant<DealReader, ResultsReader>;

/// The questions about unsaved changes and about overwriting, before any file is touched. False
/// when the person said no; the board is then as it is stored, or still has its changes.
bool MayImport(Session& session);

/// Stores the boards of a file in the current library, tells how it went and shows the first.
ImportOutcome StoreFile(Session& session, const std::filesystem::path& path,
                        const RecordReader& reader);

/// The same for a text at hand; `unreadable` is what is told when the reader throws.
ImportOutcome StoreText(Session& session, std::string text, const std::string& unreadable,
                        const RecordReader& reader);

}  // namespace tricklet
