// The editing of the board's hands in the window.
#pragma once

#include <string_view>

#include "generate/board_history.h"
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
  /// Ends editing when a board has been loaded, which also leaves nothing for the buttons to undo,
  /// or when the play has begun; to be called whenever either may have happened.
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
  /// Asks where the board holds cards.
  void PasteDeal(const HandTable& hands);
  void SwapHands(Seat from, Seat to);
  void SwapSuits(Suit suit1, Suit suit2);
  /// When the auction is to be taken along but cannot be, tells the person and changes nothing.
  void Rotate(Rotation rotation, bool takeAuction);

  /// Takes notice of a change of the board that a command has made, as a step to be undone: `step`
  /// says in a word or two what it was.
  void Note(const std::string& step);
  /// What has been done to the board.
  const BoardHistory& History() const { return past_; }
  void Undo();
  void Redo();
  /// The board as it is stored; a step that can be undone.
  void Revert();

 private:
  Board& ForEditing();
  std::string Place() const;

  Session& session_;
  PlayControl& play_;
  EditHistory history_;
  BoardHistory past_;
  int boardsLoaded_ = 0;
  bool editing_ = false;
};

}  // namespace tricklet::ui
