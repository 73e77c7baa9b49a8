// Everything that a DLM file holds.
#pragma once

#include <string_view>

#include "formats/contents/contents.h"

namespace tricklet {

/// Reads the whole text of a file. The deals with which dealing programs fill the boards outside
/// "From board" to "To board" are no games: the placeholder, and any that several of those boards
/// have. A board line that cannot be read is an unread part. Throws nothing.
FileContents ReadDlmContents(std::string_view text);

}  // namespace tricklet
