#include "ui/control/edit_control.h"

#include "core/statistics.h"
#include "core/text.h"
#include "generate/deal.h"
#include "library/board_clipboard.h"
#include "library/board_file.h"
#include "ui/control/play_control.h"

namespace tricklet::ui {
namespace {

/// Where a board comes with its changes, as a restored draft does: begins a new list with what is
/// stored. False when that is not known.
bool BeginWithStored(const Session& session, const std::string& place, BoardHistory& past) {
  const SeenFile& seen = session.seenFile;
  if (seen.path != session.BoardPath(session.board.boardNumber)) return false;
  Board stored = session.board;
  ClearAll(stored);
  stored.handChanged = false;
  if (seen.bytes && !ReadBoardText(*seen.bytes, stored, TableReading::Always)) return false;
  past = {};
  past.Note(place, stored, {}, {});
  return true;
}

}  // namespace

EditControl::EditControl(Session& session, PlayControl& play)
    : session_(session), play_(play), boardsLoaded_(session.boardsLoaded) {
  Note({});
}

bool EditControl::Start() {
  editing_ = play_.EndForEditing();
  return editing_;
}

void EditControl::DropStaleEdits() {
  if (boardsLoaded_ != session_.boardsLoaded) {
    boardsLoaded_ = session_.boardsLoaded;
    history_ = {};
    editing_ = false;
    if (session_.board.handChanged && BeginWithStored(session_, Place(), past_)) {
      Note("restore changes");
    }
  }
  if (session_.board.playMode) editing_ = false;
  Note({});
}

std::string EditControl::Place() const {
  return PathText(session_.BoardPath(session_.board.boardNumber));
}

void EditControl::Note(const std::string& step) {
  past_.Note(Place(), session_.board, history_, step);
}

void EditControl::Undo() {
  past_.Undo(ForEditing(), history_);
}
void EditControl::Redo() {
  past_.Redo(ForEditing(), history_);
}
void EditControl::Revert() {
  if (past_.Revert(ForEditing())) Note("revert");
}

bool EditControl::CanUndo() const {
  return CanUndoClear() || tricklet::CanUndoFill(session_.board, history_);
}
bool EditControl::CanUndoClear() const {
  return tricklet::CanUndoClear(session_.board, history_);
}
bool EditControl::CanFill() const {
  return editing_ && !GetStats(session_.board.hands).allHandsComplete;
}
bool EditControl::CanFillFourth() const {
  return editing_ && FourthHandIsOpen(session_.board);
}
bool EditControl::CanUndoFill() const {
  return editing_ && tricklet::CanUndoFill(session_.board, history_);
}

/// The board to edit. A finished play ends with the first edit.
Board& EditControl::ForEditing() {
  if (session_.board.playMode) play_.Stop();
  return session_.board;
}

void EditControl::MoveCard(Card card, std::optional<Seat> to) {
  if (!tricklet::MoveCard(ForEditing(), card, to)) session_.host.Beep();
  Note("move card");
}

bool EditControl::TypeHand(Seat seat, std::string_view text) {
  const auto problem = SetHand(ForEditing(), seat, text);
  if (problem) session_.host.Tell(*problem);
  Note("type hand");
  return !problem;
}

void EditControl::Clear() {
  tricklet::Clear(ForEditing(), history_);
  Note("clear");
}
void EditControl::UndoClear() {
  tricklet::UndoClear(ForEditing(), history_);
  Note("undo clear");
}
void EditControl::Fill() {
  if (!tricklet::Fill(ForEditing(), history_, session_.random)) {
    session_.host.Tell(std::string(kRandomisationError));
  }
  Note("random fill");
}
void EditControl::FillFourth() {
  FillFourthHand(ForEditing(), history_);
  Note("fourth hand");
}
void EditControl::UndoFill() {
  tricklet::UndoFill(ForEditing(), history_);
  Note("undo fill");
}

void EditControl::PasteDeal(const HandTable& hands) {
  if (tricklet::PasteDeal(session_, hands)) Note("paste deal");
}

void EditControl::SwapHands(Seat from, Seat to) {
  swap(ForEditing(), from, to);
  Note("swap hands");
}
void EditControl::SwapSuits(Suit suit1, Suit suit2) {
  SwapSuit(ForEditing(), suit1, suit2);
  Note("swap suits");
}

void EditControl::Rotate(Rotation rotation, bool takeAuction) {
  Board turned = session_.board;
  turned.playMode = false;
  if (!tricklet::Rotate(turned, rotation, takeAuction)) {
    session_.host.Tell(std::string(kAuctionStays));
    return;
  }
  ForEditing() = turned;
  Note("rotate");
}

}  // namespace tricklet::ui
