// Everything that a LIN text holds.
#pragma once

#include <string_view>

#include "formats/contents/contents.h"

namespace tricklet {

/// Reads all records of `text`, as `LinRecords` finds them, a game for each. A record with a broken
/// percent escape is an unread part. Throws nothing.
FileContents ReadLinContents(std::string_view text);

}  // namespace tricklet
