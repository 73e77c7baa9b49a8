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

/// Gives the current board the deal of a text, without an auction and not saved yet; asks first
/// when it holds cards. False, and nothing changed, when the person does not agree, or when these
/// are its hands already.
bool PasteDeal(Session& session, const HandTable& hands);

}  // namespace tricklet
