#include "ui/window/state_of.h"

#include "core/statistics.h"
#include "ui/commands/commands.h"
#include "ui/control/edit_control.h"
#include "ui/control/play_control.h"
#include "ui/control/results.h"
#include "ui/style/qt_text.h"
#include "ui/updates/updates.h"

namespace tricklet::ui {
namespace {

void AddBoard(WindowState& state, const Session& session) {
  const Board& board = session.board;
  state.emptyLibrary = session.library.boardCount == 0;
  state.hasCards = HasCards(board.hands);
  state.complete = GetStats(board.hands).allHandsComplete;
  state.hasCalls = board.NumCalls() > 0;
  state.makeableKnown = board.makeableValid;
  state.changed = board.handChanged;
  state.canPaste = !session.copyLibrary.empty();
}

void AddPlay(WindowState& state, const PlayControl& play) {
  state.playing = play.Play().PlayMode();
  state.playFinished = play.Play().Finished();
  state.canUndoCard = play.CanUndo();
  state.canRedoCard = play.CanRedo();
  state.canClaim = play.Play().ClaimEnabled();
  state.cardsPlayed = state.playing && play.Play().UndoTop() > 0;
  state.programDefends = play.Program() == ProgramHands::Defenders;
  state.programDeclares = play.Program() == ProgramHands::Declarer;
  state.trickComplete = play.TrickComplete();
  state.claimCaption = play.Play().ClaimCaption();
}

void AddEdit(WindowState& state, const EditControl& edit) {
  state.editing = edit.Editing();
  state.canFill = edit.CanFill();
  state.canFillFourth = edit.CanFillFourth();
  state.canUndoFill = edit.CanUndoFill();
  state.canUndoClear = edit.CanUndoClear();
  state.undoStep = edit.History().UndoStep();
  state.redoStep = edit.History().RedoStep();
  state.canRevert = edit.History().CanRevert();
}

void AddResults(WindowState& state, const Session& session, const Results& results) {
  const Replay* record = results.Record();
  state.recordShown = record != nullptr;
  state.canPlayOn =
      record != nullptr && CardPlay::WhyNotPlayOn(session.board, record->Record()).empty();
  state.canGoForward = record != nullptr && record->ForwardEnabled();
  state.canGoBack = record != nullptr && record->BackEnabled();
  const Board& seen = record != nullptr ? record->Record().board : session.board;
  state.declarer = seen.contractLevel > 0 ? std::optional(seen.declarer) : std::nullopt;
  state.hasResults = results.HasLinData();
  state.hasNotes = !results.Note().empty();
}

void AddUpdates(WindowState& state, const Updates& updates) {
  state.updatesLeftOut = updates.LeftOut();
  state.updateObstacle = FromQt(updates.Obstacle());
  const UpdateAnswer* newer = updates.Newer();
  state.newerVersion = newer != nullptr ? newer->shownVersion : std::string();
}

void AddSettings(WindowState& state, const Settings& settings) {
  state.showStats = settings.showStats;
  state.showMakeable = settings.showMakeable;
  state.showBestCards = settings.showBestCards;
  state.cardsFaces = settings.cardsFaces;
  state.colourScheme = settings.colourScheme;
  state.toolbarStyle = settings.toolbarStyle;
}

}  // namespace

WindowState StateOf(WindowState known, const Session& session, const Commands& commands,
                    const PlayControl& play, const EditControl& edit, const Results& results,
                    const Updates& updates) {
  WindowState state = std::move(known);
  state.entering = commands.Auction() != nullptr;
  AddBoard(state, session);
  AddPlay(state, play);
  AddEdit(state, edit);
  AddResults(state, session, results);
  AddUpdates(state, updates);
  AddSettings(state, session.settings);
  return state;
}

}  // namespace tricklet::ui
