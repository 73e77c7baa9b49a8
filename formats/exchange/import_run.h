// What every import does around its reader: storing the boards with progress and Cancel, keeping
// the results, telling how it went.
#pragma once

#include <string>

#include "formats/exchange/import_outcome.h"
#include "formats/exchange/record_reader.h"
#include "library/session.h"

namespace tricklet {

/// Stores the boards of a text in the current library, tells how it went and shows the first; tells
/// `unreadable` when the reader throws. A board that cannot be written ends the import with the
/// reason and the count of those before it.
ImportOutcome StoreText(Session& session, RecordSource source, const std::string& unreadable,
                        const RecordReader& reader);

}  // namespace tricklet
