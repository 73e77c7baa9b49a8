// What the window shows in which state.
#pragma once

#include "ui/actions/window_state.h"

namespace tricklet::ui {

/// Every part of the window that can come and go.
struct PanesShown {
  bool bars = false;  ///< menu bar, toolbar and status line
  bool table = false;
  bool empty = false;  ///< the choices of an empty library, on the table

  bool left = false;  ///< the column, with what is on in it
  bool library = false;
  bool tricks = false;
  bool review = false;
  bool edit = false;
  bool statistics = false;

  bool right = false;
  bool contract = false;
  bool makeable = false;
  bool makeableRoom = false;  ///< its room is kept: a table can still come
  bool notes = false;
  bool traveller = false;

  bool leftRoom = false;  ///< the room of a hidden column is kept, so that the table stays in place
  bool rightRoom = false;

  friend bool operator==(const PanesShown&, const PanesShown&) = default;
};

/// Whether the notes of the board may be seen: they may tell how the board is played and what
/// hidden hands hold.
bool CanShowNotes(const WindowState& state);

/// The one place that decides it. The auction is in the right column whenever that is shown.
PanesShown ShownIn(const WindowState& state);

}  // namespace tricklet::ui
