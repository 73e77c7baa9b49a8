// The tricks of a play and its review, as the window shows them.
#pragma once

#include <optional>
#include <vector>

#include <QObject>

#include "library/session.h"
#include "review/play_review.h"
#include "ui/actions/window_state.h"

namespace tricklet::ui {

class PlayControl;
class Results;
class ReviewFinder;
class Panes;
struct PlayedAt;

/// Fills the panes of the left column for the play that is being made, or for the record that is
/// looked at, and goes from mistake to mistake in a record.
class ReviewDisplay : public QObject {
  Q_OBJECT

 public:
  ReviewDisplay(Session& session, const PlayControl& play, Results& results, const Panes& panes,
                QObject* parent = nullptr);

  /// Shows what `state` allows to be told; to be called whenever play, record or state may be
  /// others. Of a record with a hidden hand only the cards so far are shown.
  void Show(const WindowState& state);

  /// What is known of mistakes in the record, for the window's state.
  bool HasMistakeAfter() const { return MistakeAfter().has_value(); }
  bool HasMistakeBefore() const { return MistakeBefore().has_value(); }
  void ToNextMistake();
  void ToPreviousMistake();

 signals:
  /// More is known, so that everything has to be shown afresh.
  void Changed();
  /// A card that gave tricks away is looked at: what it cost. Empty when it no longer is.
  void Told(const QString& text);

 private:
  /// The review that may be shown; nullptr while there is none.
  const PlayReview* Shown() const;
  std::optional<std::size_t> MistakeAfter() const;
  std::optional<std::size_t> MistakeBefore() const;
  void FindReview();
  void ShowTricks(const WindowState& state);
  void ShowReview();
  PlayedAt At() const;
  int LastCard() const;
  void Tell();

  Session& session_;
  const PlayControl& play_;
  Results& results_;
  const Panes& panes_;
  ReviewFinder* finder_;
  bool reviewing_ = false;
  int pointed_ = -1;  // the card under the mouse or the keys; -1 for none
  int last_ = -1;     // the card that was played last
  QString told_;
};

}  // namespace tricklet::ui
