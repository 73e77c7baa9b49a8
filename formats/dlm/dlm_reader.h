// Reading DLM files, the hand records of dealing machines.
#pragma once

#include <string_view>

#include "formats/sink/board_sink.h"

namespace tricklet {

/// Reads the "Board" lines of `text` up to the number in its "To board" line; lines end in CR LF,
/// LF or CR. A "From board" line does not matter, and check values are not verified: there are
/// files in which they are wrong and the deals are right. `firstBoard` is the lowest board read.
/// After a line that cannot be read, shown in lower case as it was read, `boardsSaved` is 0
/// although the boards before it are stored. Throws `Fault` FaultNumber::SubscriptOutOfRange for a
/// deal with a bad letter after its first, and what `sink` throws.
ReadResult ReadDLM(std::string_view text, BoardSink& sink);

}  // namespace tricklet
