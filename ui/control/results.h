// The results of the current board, and the play record among them that is being looked at.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <QObject>

#include "formats/results/lin_data.h"
#include "formats/results/traveller.h"
#include "library/board_notes.h"
#include "library/session.h"
#include "play/replay.h"

namespace tricklet::ui {

/// Looking at a record leaves the session's board as it is. Every change by a person ends with
/// `Changed`.
class Results : public QObject {
  Q_OBJECT

 public:
  explicit Results(Session& session, QObject* parent = nullptr);

  /// The library has results at all.
  bool HasLinData() const { return !file_->Empty(); }
  /// The results of the library, which never change: other results are another file.
  const std::shared_ptr<const LinFile>& File() const { return file_; }
  /// The current board's results; without rows when there are none.
  const Traveller& OfBoard() const { return traveller_; }
  /// What is written about the current board; may be empty.
  const std::string& Note() const { return note_; }
  /// What is said of the calls that are seen: of the record's, else of the current board's where a
  /// record has the same auction.
  CallRemarks Remarks() const;
  /// Grows with each new traveller of `OfBoard`, so that a pane knows when to show it afresh.
  int Edition() const { return edition_; }

  /// The row whose record is being looked at; -1 when none is.
  int Row() const { return row_; }
  /// The record being looked at; nullptr when none is.
  const Replay* Record() const { return replay_.get(); }

  /// Reads the current board's traveller and notes again where they may have changed: to be called
  /// whenever the board, the library or its results may be others.
  void ReadTraveller();
  /// Puts the record away when it no longer belongs to the current board, when the board is being
  /// played, and when its auction or its hands are being entered (`entering`).
  void DropStaleRecord(bool entering);

  /// Looks at the record of a row; not while the board is being played.
  void ShowRecord(int row);
  /// Looks at the board itself again.
  void Leave();
  /// The play goes on from the record: the next `DropStaleRecord` without a play comes back to
  /// where it is now, if the board is still the same.
  void Pause();
  // Steps of `Replay` in the record that is being looked at; none without one.
  void Forward();
  void Back();
  void NextTrick();
  void PreviousTrick();
  void GoTo(int cards);
  /// Plays a card that was clicked or typed when it is the next of the record; else refuses it.
  void PlayCard(Card card);

 signals:
  void Changed();

 private:
  void Step(const std::function<void(Replay&)>& step);
  bool IsStillTheBoard() const;
  void Resume();

  Session& session_;
  LinData lin_;
  NotesData notes_;
  std::string note_;                                                         // of the current board
  std::shared_ptr<const LinFile> file_ = std::make_shared<const LinFile>();  // of `traveller_`
  Traveller traveller_;
  int edition_ = 0;
  int row_ = -1;
  std::unique_ptr<Replay> replay_;
  struct Place {
    int row = -1;
    int shown = 0;
    std::string lin;  // of the row
  };
  std::optional<Place> paused_;
  Board board_;          // as it was when the record was chosen
  std::string library_;  // the library's name then
};

}  // namespace tricklet::ui
