// The review of a play, made in the background.
#pragma once

#include <atomic>
#include <deque>
#include <memory>
#include <optional>
#include <string>

#include <QObject>

#include "library/session.h"
#include "review/play_review.h"

namespace tricklet::ui {

class Worker;

/// Reviews the play that is looked at. The last few dozen plays are remembered, and what is known
/// of a play is known of every other one that begins with the same cards: a play that goes on
/// keeps its review until the longer one is there, and one that is taken back needs no solver.
class ReviewFinder : public QObject {
  Q_OBJECT

 public:
  explicit ReviewFinder(Session& session, QObject* parent = nullptr);
  ~ReviewFinder() override;

  /// Begins to review `record`; to be called whenever it may be another one. An answer about an
  /// earlier one is remembered, but not shown.
  void Find(const RecordedPlay& record);
  /// There is nothing to review.
  void Forget();

  /// The review of the record that was asked for, up to the last card that is known; nullptr while
  /// nothing is. Of a part, nothing is said of the result.
  const PlayReview* Review() const { return review_ ? &*review_ : nullptr; }
  /// All cards are known that can be.
  bool Complete() const { return complete_; }
  /// Why there is no review, a sentence for the person; empty when there is one or will be.
  const std::string& Why() const { return why_; }

 signals:
  /// The review, or why there is none, has become known.
  void Changed();

 private:
  struct Answer {
    SolverPlay play;
    PlayTricks tricks;    // of one position more than there are cards
    std::string failure;  // of the solver, for the person
  };

  void Show();
  const Answer* Nearest() const;
  void Post();
  void Take(Answer answer);

  Session& session_;
  std::optional<RecordedPlay> record_;
  SolverPlay play_;  // of `record_`
  std::optional<PlayReview> review_;
  bool complete_ = false;
  std::string why_;
  std::deque<Answer> answers_;                // the newest last
  std::shared_ptr<std::atomic<int>> wanted_;  // the number of the last question
  std::unique_ptr<Worker> worker_;            // from the first question on
};

}  // namespace tricklet::ui
