// The editing of the board's hands in the window.
#pragma once

#include <string_view>

#include "generate/editing.h"
#include "generate/rotation.h"
#include "library/session.h"

namespace tricklet::ui {

class PlayControl;

/// Whether the session's board is being edited, and what has been kept to undo. Each edit is the
/// engine's; a refusal is told to the person, with a beep or a message, and changes nothing.
class EditControl {
 public:
  EditControl(Session& session, PlayControl& play);

  bool Editing() const { return editing_; }

  /// `cmdEdit`: begins, and ends the play, which may be asked about. False when the person wants to
  /// play on.
  bool Start();
  void Stop() { editing_ = false; }
  /// Ends the editing of a board that has been loaded or played since, and forgets what could be
  /// undone of one that has been loaded; to be called whenever that may have happened.
  void DropStaleEdits();

  bool CanUndoClear() const;
  // These are false unless the hands are being edited.
  bool CanFill() const;
  bool CanFillFourth() const;
  bool CanUndoFill() const;

  /// Into the pack when there is no `to`; beeps when there is no place for the card.
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
  /// Tells the person, and changes nothing, when the auction is to be taken along but cannot be.
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
