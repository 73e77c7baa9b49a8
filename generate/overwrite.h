// The question before a run of boards replaces others.
#pragma once

#include "library/session.h"

namespace tricklet {

/// Asks about overwriting when any board of first..last exists in the current library.
bool MayOverwrite(Session& session, int first, int last);

}  // namespace tricklet
