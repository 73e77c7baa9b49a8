// Reading LIN files as sites of online bridge write them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "formats/sink/board_sink.h"

namespace tricklet {

/// The text holds a LIN deal, as it stands or percent-encoded in an address.
bool LooksLikeLin(std::string_view text);

/// Reads all records of `text`, as `LinRecords` finds them.
///
/// The first record of a board gives its deal and auction; a further one of the same deal (the
/// closed room, another table) adds no board. The result lists what is left out: a record of
/// another deal than its board's, of an impossible deal, or with a broken percent escape; and
/// auctions of more than 100 calls or of a dealer who is not the board's, whose calls would be
/// given to the wrong seats.
///
/// `records` takes each record of the boards stored as a line for "LIN.txt", with the names and
/// "|Board N|" in it. Throws what `sink` throws.
ReadResult ReadLIN(std::string_view text, BoardSink& sink, std::vector<std::string>& records);

}  // namespace tricklet
