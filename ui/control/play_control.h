// The play of the board in the window: the engine's rules with a real clock.
#pragma once

#include <optional>
#include <vector>

#include <QObject>
#include <QTimer>

#include "library/session.h"
#include "play/card_play.h"

namespace tricklet::ui {

/// The engine's trick timer on the event loop.
class QtTrickTimer : public QObject, public TrickTimer {
  Q_OBJECT

 public:
  explicit QtTrickTimer(QObject* parent = nullptr);
  void Start(std::chrono::milliseconds delay) override;
  void Stop() override;

 signals:
  void Elapsed();

 private:
  QTimer timQuit;
};

/// Owns the play of the session's board. Every change of it, by a person or by the clock, ends with
/// `Changed`.
class PlayControl : public QObject {
  Q_OBJECT

 public:
  explicit PlayControl(Session& session, QObject* parent = nullptr);

  /// What is to be shown; its `playMode` says whether there is a play at all.
  const CardPlay& Play() const { return play_; }

  /// All four hands are complete: there is something to play.
  bool CanStart() const;
  /// Cards are still to be played: nothing else is done with the board meanwhile.
  bool Unfinished() const { return play_.PlayMode() && !play_.Finished(); }
  /// Some cards have been played, but not all: leaving the board would lose them.
  bool UnderWay() const { return Unfinished() && play_.UndoTop() > 0; }
  /// A finished trick lies on the table, to be gathered.
  bool TrickComplete() const;

  /// `cmdPlay`, after the auction dialog where `CardPlay::NeedsAuction` asks for it. False when the
  /// board cannot be played.
  bool Start();
  /// Leaves the play; the board is as before it.
  void Stop();
  /// To be called before the board is left: stops a play that is under way, after a question. False
  /// when the person wants to play on.
  bool Leave();
  /// Leaves the play so that the cards can be edited. False when the person wants to play on.
  bool EndForEditing();
  /// Beeps, and changes nothing, when the card is not legal.
  void PlayCard(Card card);
  /// Plays the only legal card; beeps when there are more, or none.
  void PlayOnlyCard();
  /// Takes back the claim or else the last card.
  void Undo();
  /// Plays or claims again what `Undo` has taken back and nothing has replaced since.
  bool CanRedo() const { return play_.PlayMode() && !undone_.empty(); }
  void Redo();
  /// Gives the tricks that are left to the side on play.
  void Claim();
  /// Gathers a finished trick without waiting for the clock.
  void QuitTrick();
  /// Stops the clock of a play that has ended; to be called when the board may be another one, or
  /// changed.
  void StopClockOfEndedPlay();

 signals:
  void Changed();

 private:
  Session& session_;
  QtTrickTimer timer_;
  CardPlay play_;
  std::vector<std::optional<Card>> undone_;  // the last first to be done again; none: a claim
};

}  // namespace tricklet::ui
