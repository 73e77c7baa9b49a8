// Boards taken out of libraries.
#pragma once

#include <vector>

#include "finding/board_place.h"
#include "library/session.h"

namespace tricklet {

/// Sends boards to the recycle bin, after a question; their notes and results stay. False when the
/// person did not agree or, after a message, when not all could be sent.
bool DeleteBoards(Session& session, const std::vector<BoardPlace>& boards);

}  // namespace tricklet
