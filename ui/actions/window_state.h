// What the window is doing, as plain values.
#pragma once

#include <algorithm>
#include <optional>
#include <string>

#include "core/notation.h"
#include "core/settings.h"

namespace tricklet::ui {

/// Everything that decides which panes are shown and which actions can be carried out. It is made
/// afresh for each display; nothing in it is changed by a pane.
struct WindowState {
  // What is going on.
  bool working = false;            ///< long work, with its progress display
  bool dealing = false;            ///< that work leaves a deal to be shown: the generator, analysis
  bool presentation = false;       ///< full screen for an audience
  bool presentationPanes = false;  ///< with the auction and the panes of the right column
  bool entering = false;           ///< the auction dialog is open
  bool editing = false;            ///< the hands are being edited
  bool playing = false;            ///< a play is on, finished or not
  bool playFinished = false;
  bool recordShown = false;  ///< a play record is looked at

  // The library and its current board.
  bool emptyLibrary = false;  ///< not one board is stored in it
  bool hasCards = false;
  bool complete = false;  ///< all four hands have 13 cards
  bool hasCalls = false;  ///< there is an auction, of the board or of the record
  bool makeableKnown = false;
  bool changed = false;       ///< there are changes that are not saved
  bool canPaste = false;      ///< a board has been copied
  bool hasNotes = false;      ///< something is written about the board
  bool writingNotes = false;  ///< the person has asked for the notes, also where there are none
  bool hasResults = false;    ///< the library has results of tables

  // What can be done in the play, the editing and the record.
  bool canUndoCard = false;
  bool canRedoCard = false;
  bool canClaim = false;
  bool cardsPlayed = false;     ///< some, in the play
  bool programDefends = false;  ///< the program plays the defenders' hands
  bool programDeclares = false;
  bool trickComplete = false;
  bool canFill = false;
  bool canFillFourth = false;
  bool canUndoFill = false;
  bool canUndoClear = false;
  bool canPlayOn = false;     ///< from the record, which is of the board
  bool canGoForward = false;  ///< in the record
  bool canGoBack = false;
  bool hasMistakeAfter = false;   ///< in the record, after the place that was stepped to
  bool hasMistakeBefore = false;  ///< before it
  bool canRevert = false;         ///< the board differs from what is stored
  std::string undoStep{};         ///< what can be undone on the board: "rotate"; empty when nothing
  std::string redoStep{};
  std::string claimCaption = "Claim";
  PerSeat<bool> hidden{};          ///< hands that are turned face down
  std::optional<Seat> declarer{};  ///< of the contract that is seen: the board's or the record's

  // The check for newer versions.
  bool updatesLeftOut = false;   ///< of this build
  std::string updateObstacle{};  ///< why none can be asked for; empty when it can
  std::string newerVersion{};    ///< its number; empty when none is known

  // Settings that switch something on.
  bool showStats = false;
  bool showMakeable = false;
  bool showBestCards = false;
  bool cardsFaces = false;
  ColourScheme colourScheme = ColourScheme::System;
  ToolbarStyle toolbarStyle = ToolbarStyle::TextUnderIcon;

  /// Cards are still to be played: nothing else is done with the board meanwhile.
  bool PlayUnfinished() const { return playing && !playFinished; }
  /// What cards have cost may be told: not while some hand is a secret, and of a play that goes on
  /// only where best cards are told, too.
  bool Reviewing() const {
    if (AnyHidden()) return false;
    return PlayUnfinished() ? showBestCards : playing || recordShown;
  }
  /// Both hands of the declaring side, or of the defenders, are turned face down. False without a
  /// declarer.
  bool IsSideHidden(bool declaring) const {
    if (!declarer) return false;
    const Seat seat = declaring ? *declarer : SeatAfter(*declarer);
    return hidden[seat] && hidden[PartnerOf(seat)];
  }
  bool AnyHidden() const {
    return std::any_of(kAllSeats.begin(), kAllSeats.end(),
                       [this](Seat seat) { return hidden[seat]; });
  }
};

}  // namespace tricklet::ui
