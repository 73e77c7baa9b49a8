// Reading DLM files, the hand records of dealing machines.
#pragma once

#include <string_view>

#include "formats/sink/board_sink.h"

namespace tricklet {

/// Reads the "Board" lines of `text` up to the number in its "To board" line; lines end in CR LF,
/// LF or CR. The file's range has no say in where the boards begin, and check values are not
/// verified: the deals of files whose check value is wrong are right all the same. `firstBoard` is
/// the lowest board read. After a line that cannot be read, shown in lower case as it was read,
/// `boardsSaved` is 0 although the boards before it are stored.
/// Throws `Fault` FaultNumber::SubscriptOutOfRange for a deal with a bad letter after its first,
/// and what `sink` throws.
ReadResult ReadDLM(std::string_view text, BoardSink& sink);

}  // namespace tricklet
