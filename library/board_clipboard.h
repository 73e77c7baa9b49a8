// Copying one board to another place.
#pragma once

#include "library/session.h"

namespace tricklet {

/// `mnuCopyHand`: remembers the current board as the one to paste.
void CopyHand(Session& session);

/// `mnuPasteHand`: copies the remembered board's file over the current board's, byte for byte, and
/// loads it; asks first when the current board holds cards. False, and nothing changed, when
/// nothing was copied, the person did not agree, what was copied is gone, the current board's file
/// is marked read-only, or a file could not be read or written; the last three are told.
bool PasteHand(Session& session);

}  // namespace tricklet
