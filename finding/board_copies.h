// Boards of libraries copied to another one.
#pragma once

#include <string>
#include <vector>

#include "finding/board_numbers.h"
#include "finding/board_place.h"
#include "library/session.h"

namespace tricklet {

/// Copies boards into the library `to`, which is made when the root has none of the name. Deal,
/// auction, table of makeable tricks and notes go along; results stay where they were played. A
/// board whose dealer becomes another one loses the auction, which would be another one's. No board
/// of `to` is replaced. All boards are read before the first is written. Tells how many have been
/// copied, and where. False, after a message, when not all could be; true and no message for none.
bool CopyBoards(Session& session, const std::vector<BoardPlace>& boards, const std::string& to,
                const NumberPlan& plan);

/// The number after the last board of a library of the root, 1 where there is no such library: what
/// to propose for `NumberPlan::first`. 999 where that is taken. Throws `Fault`.
int NumberAfterLast(const Session& session, const std::string& library);

}  // namespace tricklet
