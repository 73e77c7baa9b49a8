// The results that come with a hand-record file, on their way into "LIN.txt".
#pragma once

#include "formats/exchange/library_sink.h"
#include "formats/exchange/record_reader.h"

namespace tricklet {

/// Puts the results of the boards that `sink` has stored into the current library's "LIN.txt", and
/// writes a file with the extended document type, if there is one, to "QENXML.xml" beside it. The
/// old "LIN.txt" stays until then and is replaced whole, so there is always one of the two. When no
/// board was stored, nothing is changed. Throws `Fault` when a file cannot be written.
void KeepResults(const Session& session, Brings brings, const LibrarySink& sink, Reading& reading);

}  // namespace tricklet
