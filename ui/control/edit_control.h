// The editing of the board's hands in the window.
#pragma once

#include <string_view>

#include "generate/editing.h"
#include "generate/rotation.h"
#include "library/session.h"

namespace tricklet::ui {

class PlayControl;

/// Whether the session's board is being edited, and what can be undone. The engine makes each edit;
/// when it refuses, the person is told by a beep or a message, and nothing changes.
class EditControl {
 public:
  EditControl(Session& session, PlayControl& play);

  bool Editing() const { return editing_; }

  /// `cmdEdit`: begins editing and ends the play, in mid-play after a question. False when the
  /// person wants to play on.
  bool Start();
  void Stop() { editing_ = false; }
  /// Ends editing when a board has been loaded, which also leaves nothing to undo, or when the play
  /// has begun; to be called whenever either may have happened.
  void DropStaleEdits();

  /// There are edits of this board to undo, now or when editing again.
  bool CanUndo() const;
  bool CanUndoClear() const;
  // These are false unless the hands are being edited.
  bool CanFill() const;
  bool CanFillFourth() const;
  bool CanUndoFill() const;

  /// Moves the card into the pack when there is no `to`; beeps when the seat has no room for it.
  void MoveCard(Card card, std::optional<Seat> to);
  /// Gives the hand of `seat` the cards of `text`, such as "AKT2.QJ5.-.98"; false, after a message,
  /// when that is refused.
  bool TypeHand(Seat seat, std::string_view text);
  void Clear();
  void UndoClear();
  void Fill();
  void FillFourth();
  void UndoFill();
  void SwapHands(Seat from, Seat to);
  void SwapSuits(Suit suit1, Suit suit2);
  /// When the auction is to be taken along but cannot be, tells the person and changes nothing.
  void Rotate(Rotation rotation, bool takeAuction);

 private:
  Board& ForEditing();

  Session& session_;
  PlayControl& play_;
  EditHistory history_;
  int boardsLoaded_ = 0;
  bool editing_ = false;
};

}  // namespace tricklet::ui
