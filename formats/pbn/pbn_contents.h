// All that a file in Portable Bridge Notation holds.
#pragma once

#include <string_view>

#include "formats/contents/contents.h"

namespace tricklet {

/// Reads a whole file, in UTF-8 or else in Latin-1, by the PBN standard 2.1 in its import format
/// and with more patience than that asks for. A game without a deal is of the deal before it,
/// unless it has a board number of its own; one without deal, board number, result and auction is
/// none. What cannot be read is in `unread`, and a game whose deal cannot be read and that has no
/// results is left out. There is one section, or none where there is no game. Time and memory are
/// linear in the text, whatever it holds.
FileContents ReadPbnContents(std::string_view text);

}  // namespace tricklet
