// The results that come with a hand-record file, on their way into "LIN.txt".
#pragma once

#include "formats/exchange/library_sink.h"
#include "formats/exchange/record_reader.h"

namespace tricklet {

/// Puts the notes of the boards that `sink` has stored into the current library's "Notes.txt", in
/// the place of those that it has of these boards. When no board was stored, or there is nothing to
/// change, the file stays as it is. Throws `Fault` when it cannot be written.
void KeepNotes(Session& session, LibrarySink& sink, const Reading& reading);

/// Puts the results of the boards that `sink` has stored into the current library's "LIN.txt", and
/// writes a file with the extended document type, if there is one, to "QENXML.xml" beside it. The
/// old "LIN.txt" stays until then: LIN records are merged with those of other boards in it, and
/// club results send it to the recycle bin; planned results do the one where it has other boards
/// than those stored, and the other where it has none. When no board was stored, nothing is
/// changed. Throws `Fault` when a file cannot be written.
void KeepResults(Session& session, Brings brings, LibrarySink& sink, Reading& reading);

}  // namespace tricklet
