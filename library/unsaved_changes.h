// What becomes of changes to the current board that have not been saved.
#pragma once

#include "library/session.h"

namespace tricklet {

/// Asks about unsaved changes before the board is left. OK, or Cancel when the person wants to stay
/// (or wanted to save and the board could not be saved).
Answer CheckSaveChanges(Session& session);

/// Asks before a command that works on what is stored and leaves the board on the screen; where the
/// changes were given up, the board is shown as it is stored. False when the person wants to stay.
bool SettleChanges(Session& session);

}  // namespace tricklet
