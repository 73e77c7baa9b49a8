// Boards of a library under other numbers.
#pragma once

#include <vector>

#include "finding/board_numbers.h"
#include "library/session.h"

namespace tricklet {

/// Gives the boards of the current library that have the numbers `old` other ones, in this order;
/// those of the boards that stay are taken. Notes and results go along. A board with results keeps
/// dealer and vulnerability, as its scores depend on them, or nothing is done; one without loses
/// its auction when the dealer becomes another one. The old files go to the recycle bin together.
/// False, after a message, when nothing was done.
bool RenumberBoards(Session& session, const std::vector<int>& old, const NumberPlan& plan);

}  // namespace tricklet
