// When an action can be carried out, and when its mark is set.
#pragma once

#include "ui/actions/panes_shown.h"
#include "ui/actions/window_state.h"

namespace tricklet::ui::condition {

using State = const WindowState&;

template <bool WindowState::*kSwitch>
bool IsOn(State state) {
  return state.*kSwitch;
}
inline bool NotEditing(State state) {
  return !state.editing;
}
inline bool NotInPlay(State state) {
  return !state.PlayUnfinished();
}
inline bool PlayUnfinished(State state) {
  return state.PlayUnfinished();
}
inline bool CanRevert(State state) {
  return state.canRevert && !state.PlayUnfinished();
}
inline bool CanUndo(State state) {
  return state.playing ? state.canUndoCard : !state.undoStep.empty();
}
inline bool CanRedo(State state) {
  return state.playing ? state.canRedoCard : !state.redoStep.empty();
}
inline bool CanPaste(State state) {
  return state.canPaste && !state.PlayUnfinished();
}
inline bool LibraryShown(State state) {
  return ShownIn(state).library && !state.presentation;
}
inline bool CanFill(State state) {
  return state.canFill && !state.PlayUnfinished();
}
inline bool CanFillFourth(State state) {
  return state.canFillFourth && !state.PlayUnfinished();
}
inline bool CanUndoFill(State state) {
  return state.canUndoFill && !state.PlayUnfinished();
}
inline bool CanUndoClear(State state) {
  return state.canUndoClear && !state.PlayUnfinished();
}
inline bool CanBid(State state) {
  return !state.PlayUnfinished() && !state.editing;
}
inline bool CanPlayOrStop(State state) {
  return state.playing || state.complete;
}
/// Its table would not be seen while the hands are edited.
inline bool CanAnalyse(State state) {
  return state.complete && !state.editing;
}
inline bool CanCopyDiagram(State state) {
  return state.hasCards || state.recordShown;
}
inline bool CanHide(State state) {
  return !state.editing;
}
inline bool CanHideSide(State state) {
  return CanHide(state) && state.declarer.has_value();
}
inline bool CanCheckForUpdates(State state) {
  return state.updateObstacle.empty();
}

inline bool AnyHidden(State state) {
  return state.AnyHidden();
}
template <Seat kSeat>
bool IsHidden(State state) {
  return state.hidden[kSeat];
}
template <bool kDeclaring>
bool IsSideHidden(State state) {
  return state.IsSideHidden(kDeclaring);
}
template <ColourScheme kScheme>
bool HasScheme(State state) {
  return state.colourScheme == kScheme;
}
template <ToolbarStyle kStyle>
bool HasStyle(State state) {
  return state.toolbarStyle == kStyle;
}

}  // namespace tricklet::ui::condition
