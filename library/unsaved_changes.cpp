#include "library/unsaved_changes.h"

#include "library/board_store.h"
#include "library/loss_text.h"

namespace tricklet {

Answer CheckSaveChanges(Session& session) {
  if (session.batchRunning || !session.board.handChanged) return Answer::OK;
  const std::string question = "Do you want to save changes to board " +
                               std::to_string(session.board.boardNumber) + " in library " +
                               session.ShownLibrary() + "?";
  switch (session.host.Ask({.text = question,
                            .title = "Save changes?",
                            .buttons = Buttons::YesNoCancel,
                            .safe = Answer::Yes,
                            .detail = UnsavedText(session)})) {
    case Answer::Yes:
      // A board that could not be saved stays, with its changes.
      return SaveHand(session) ? Answer::OK : Answer::Cancel;
    case Answer::No:
      session.board.handChanged = false;
      return Answer::OK;
    default:
      return Answer::Cancel;
  }
}

bool SettleChanges(Session& session) {
  if (session.batchRunning || !session.board.handChanged) return true;
  if (CheckSaveChanges(session) == Answer::Cancel) return false;
  LoadHand(session);
  return true;
}

}  // namespace tricklet
