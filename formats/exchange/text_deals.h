// Deals that stand in a text by themselves, without the tags of a hand-record file: in a mail, or
// in a table that was copied from a browser.
#pragma once

#include <optional>
#include <string_view>

#include "core/board.h"
#include "formats/contents/contents.h"

namespace tricklet {

/// The deal that `text` is, in the form of PBN: "N:AKQ5.JT2.. ..." with the hands clockwise from
/// the seat named, each with its spades, hearts, diamonds and clubs divided by dots, "-" for a hand
/// that is not known. The ten may be written "10", letters in either case. Without a seat North is
/// the first, and each hand is then unknown or complete. Nothing when the text is anything else, no
/// card is given, or no such deal exists.
std::optional<HandTable> DealInText(std::string_view text);

/// The deals of a text of several, a board for each: lines and, in a line, cells divided by tabs. A
/// cell is a deal as `DealInText` reads it; or four cells one beside the other are the complete
/// hands of North, East, South and West. The number of a board is that of the last cell before its
/// deal that is one ("7", "Board 7"), if there is any. Cells that are plainly meant for a deal and
/// cannot be read are unread parts; everything else is passed over. Throws nothing.
FileContents ReadTextDeals(std::string_view text);

}  // namespace tricklet
