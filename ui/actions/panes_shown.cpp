#include "ui/actions/panes_shown.h"

namespace tricklet::ui {

bool CanShowNotes(const WindowState& state) {
  const bool answers = !state.presentation || state.presentationPanes;
  return answers && !state.AnyHidden() && !state.PlayUnfinished() && !state.editing &&
         !(state.emptyLibrary && !state.hasCards);
}

PanesShown ShownIn(const WindowState& state) {
  // A class is to bid and play without the answers, unless the panes have been switched on.
  const bool answers = !state.presentation || state.presentationPanes;
  PanesShown shown;
  shown.bars = !state.presentation;
  shown.table = !state.working || state.dealing || state.presentation;  // a projector stays lit
  shown.empty = state.emptyLibrary && !state.hasCards && !state.editing && !state.entering;

  shown.left = !state.presentation;
  shown.library = !state.editing && !state.PlayUnfinished() && !state.recordShown;
  shown.tricks = !state.editing && (state.playing || state.recordShown);
  shown.review = shown.tricks && state.Reviewing();
  shown.edit = state.editing;
  // They tell what hidden hands hold.
  shown.statistics = state.showStats && state.hasCards && !state.AnyHidden() && !state.editing &&
                     !state.playing && !state.recordShown;

  shown.right = (answers || state.entering) && !state.working && !state.editing;
  shown.contract = state.recordShown || (state.hasCalls && !state.entering);
  shown.makeable = state.makeableKnown && state.showMakeable && answers;
  shown.makeableRoom = state.complete && state.showMakeable && answers;
  shown.notes = CanShowNotes(state) && (state.hasNotes || state.writingNotes);
  shown.traveller = state.hasResults && answers;

  shown.leftRoom = !state.presentation;
  shown.rightRoom = !state.presentation && !state.editing;  // the pack needs it
  return shown;
}

}  // namespace tricklet::ui
