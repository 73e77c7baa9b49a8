// Reading Portable Bridge Notation: of each game the tags Board, Deal, Auction, OptimumResultTable
// and DoubleDummyTricks.
#pragma once

#include <string_view>

#include "formats/sink/board_sink.h"

namespace tricklet {

/// Reads all games of `text`. The line end is chosen once for the whole file: CR LF if it holds one
/// anywhere, else CR, else LF; a text without any of them holds no boards. The first line is the
/// file's header and is not examined. A board is stored when the next one begins, or at the end. A
/// game without a deal has the hands of the game before it; calls and table are each game's own.
/// Throws `Fault` for an auction of more than 100 calls, and what `sink` throws.
ReadResult ReadPBN(std::string_view text, BoardSink& sink);

}  // namespace tricklet
