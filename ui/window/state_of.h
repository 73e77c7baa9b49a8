// The state of the window, gathered from all that holds some of it.
#pragma once

#include "library/session.h"
#include "ui/actions/window_state.h"

namespace tricklet::ui {

class Commands;
class EditControl;
class PlayControl;
class Results;
class Updates;

/// What cards, play, editing, record, updates and settings say. What only the window knows (work,
/// presentation, hidden hands) is left as it is in `known`.
WindowState StateOf(WindowState known, const Session& session, const Commands& commands,
                    const PlayControl& play, const EditControl& edit, const Results& results,
                    const Updates& updates);

}  // namespace tricklet::ui
