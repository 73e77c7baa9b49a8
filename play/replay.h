// A recorded play, stepped through card by card.
#pragma once

#include <string>

#include "core/host.h"
#include "core/recorded_play.h"
#include "play/card_play.h"

namespace tricklet {

/// Goes through a record by the rules of play. Of a record that breaks them, the cards up to the
/// first illegal one can be seen.
class Replay {
 public:
  /// Begins before the opening lead.
  Replay(RecordedPlay record, Host& host);
  Replay(const Replay&) = delete;
  Replay& operator=(const Replay&) = delete;

  const RecordedPlay& Record() const { return record_; }
  /// The play up to here; its `playMode` is off where the record lacks what a play needs.
  const CardPlay& Play() const { return play_; }

  bool ForwardEnabled() const { return Shown() < playable_; }
  bool BackEnabled() const { return Shown() > 0; }
  /// One card forward, or back; nothing happens at the record's end, or at its beginning.
  void Forward();
  void Back();
  /// To the end of the trick, or of the next one.
  void NextTrick();
  /// To the beginning of the trick, or of the one before.
  void PreviousTrick();
  /// To where `cards` have been played, 0..52; no further than to the record's end.
  void GoTo(int cards);
  /// Goes forward if `card` is the next of the record; false, and nothing happens, if it is not.
  bool ForwardBy(Card card);

  /// Cards seen so far: 0 before the opening lead, to 52.
  int Shown() const { return play_.UndoTop(); }
  /// Cards that can be seen: those before the first illegal one, 0..52.
  int Playable() const { return playable_; }
  /// "Card 5 of 52", at the record's end with a remark when the play is not complete; or why there
  /// is nothing to be seen.
  std::string PlaceText() const;
  /// The result line at the end of the record; empty before, and where the result is not known.
  std::string ScoreText() const;

 private:
  std::string EndText() const;

  RecordedPlay record_;
  NoTimer timer_;
  CardPlay play_;
  int playable_ = 0;  // cards up to the first illegal one
};

}  // namespace tricklet
