// What each card leads to, found in the background.
#pragma once

#include <atomic>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

#include <QObject>

#include "library/session.h"
#include "play/best_cards.h"

namespace tricklet::ui {

class Worker;

/// For the board that is played and for play records alike, where the setting `showBestCards` asks
/// for it. An answer that comes after the play has gone on is remembered for its own position.
class BestCardsFinder : public QObject {
  Q_OBJECT

 public:
  explicit BestCardsFinder(Session& session, QObject* parent = nullptr);
  ~BestCardsFinder() override;

  /// Begins to find the tricks for the position that `play` has reached in the contract of `board`;
  /// to be called whenever that may have changed. Forgets them when nothing is being played.
  void Find(const CardPlay& play, const Board& board);

  /// As `BestCards` tells them; empty while they are not known.
  const std::vector<CardScore>& Tricks() const { return tricks_; }

 signals:
  /// `Tricks` tells more now.
  void Changed();

 private:
  /// What the solver is asked.
  struct Question {
    SolverPosition position;
    int tricksWon = 0;  // so far, by the side on play
    friend bool operator==(const Question&, const Question&) = default;
  };

  struct Answer {
    Question question;
    std::vector<CardScore> tricks;
  };

  static std::optional<Question> QuestionOf(const PlayState& state, Strain trumps);
  const std::vector<CardScore>* Remembered(const Question& question) const;
  void Post(const Question& question);
  void Take(const Question& question, std::vector<CardScore> tricks);

  Session& session_;
  std::optional<Question> question_;
  std::vector<CardScore> tricks_;
  std::deque<Answer> answers_;                // the newest last
  std::shared_ptr<std::atomic<int>> wanted_;  // the number of the last question
  std::unique_ptr<Worker> worker_;            // from the first question on
};

}  // namespace tricklet::ui
