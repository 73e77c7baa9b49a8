// The play of the board in the window: the engine's rules with a real clock.
#pragma once

#include <optional>
#include <vector>

#include <QObject>
#include <QTimer>

#include "library/session.h"
#include "play/best_line.h"
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

/// The hands that the program plays, double-dummy, against the person who plays the others.
enum class ProgramHands : std::uint8_t { None, Defenders, Declarer };

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
  bool UnderWay() const;
  /// A finished trick lies on the table, to be gathered.
  bool TrickComplete() const;

  /// The play as it is has been kept as a record: leaving it now loses nothing.
  void NoteKept();

  /// `cmdPlay`, after the auction dialog where `CardPlay::NeedsAuction` asks for it. False when the
  /// board cannot be played.
  bool Start();
  /// Goes on from the first `cards` cards of a record, of a table where `players` sat. False, after
  /// a message, when it is not of this board.
  bool PlayOn(const RecordedPlay& record, int cards, const PerSeat<std::string>& players);
  /// Who sat at the table of the record that the play goes on from; else nobody.
  const PerSeat<std::string>& Players() const { return players_; }
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

  /// The program answers for these hands until the play ends or others are chosen.
  ProgramHands Program() const { return play_.PlayMode() ? program_ : ProgramHands::None; }
  void SetProgram(ProgramHands hands);
  /// The hand that is the person's own: declarer's, or the opening leader's when the program
  /// declares.
  Seat OwnSeat() const;
  /// Has the program play one card for the hand on play, or the rest for all four.
  void AskProgram(bool toEnd);
  /// What the program is to play now. It leads to the next trick only when the last one has been
  /// gathered, so that its cards can be seen.
  std::optional<ProgramTurn> Turn() const;
  /// The program's `cards` for `turn`, if it is still that turn. Without cards, as the solver could
  /// not tell, the program plays no more.
  void PlayProgram(const ProgramTurn& turn, const std::vector<Card>& cards);

  /// There is something to take back: of a play against the program, something of one's own.
  bool CanUndo() const;
  /// Takes back the claim or else the last card; against the program one's own last card, with what
  /// the program has played after it.
  void Undo();
  /// Plays or claims again what `Undo` has taken back and nothing has replaced since.
  bool CanRedo() const { return play_.PlayMode() && !undone_.empty(); }
  void Redo();
  /// Gives the tricks that are left to the side on play.
  void Claim();
  /// `tricks` in all for `side`, as `CardPlay::ClaimTricks`.
  void ClaimTricks(Side side, int tricks);
  /// Gathers a finished trick without waiting for the clock.
  void QuitTrick();
  /// Stops the clock of a play that has ended; to be called when the board may be another one, or
  /// changed.
  void StopClockOfEndedPlay();

 signals:
  void Changed();

 private:
  /// A card that was taken back, or a claim.
  struct Step {
    std::optional<Card> card;  // none: a claim, of these tricks
    Side side = Side::NorthSouth;
    int tricks = 0;
    bool answer = false;  // of the program to a card of the person
  };

  void Begin();
  bool IsProgramsHand() const;
  Step TakeBack();
  void DoAgain(const Step& step);
  void PlayOne(Card card, bool answer);

  Session& session_;
  QtTrickTimer timer_;
  CardPlay play_;
  std::vector<Step> undone_;   // the last first to be done again
  std::vector<bool> answers_;  // which steps of the play were answers of the program
  ProgramHands program_ = ProgramHands::None;
  std::optional<bool> asked_;  // whether the program was asked for all that is left, or one card
  PerSeat<std::string> players_;
  std::vector<Card> kept_;  // the cards that a record has been made of
};

}  // namespace tricklet::ui
