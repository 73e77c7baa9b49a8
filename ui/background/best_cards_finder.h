// What each card leads to, found while the window goes on.
#pragma once

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

#include <QObject>

#include "library/session.h"
#include "play/best_cards.h"

namespace tricklet::ui {

class Worker;

/// Follows a play where the setting `showBestCards` asks for it. An answer that comes when the play
/// has gone on is thrown away.
class BestCardsFinder : public QObject {
  Q_OBJECT

 public:
  BestCardsFinder(Session& session, const CardPlay& play, QObject* parent = nullptr);
  ~BestCardsFinder() override;

  /// Looks at the position; to be called whenever it may be another one.
  void Look();

  /// As `BestCards` tells them; empty while they are not known.
  const std::vector<CardScore>& Tricks() const { return tricks_; }

 signals:
  /// `tricks` are known now.
  void Changed();

 private:
  void Post(const SolverPosition& position, int tricksWon);

  Session& session_;
  const CardPlay& play_;
  std::optional<SolverPosition> position_;
  std::vector<CardScore> tricks_;
  std::shared_ptr<std::atomic<int>> wanted_;  // the number of the last question
  std::unique_ptr<Worker> worker_;            // from the first question on
};

}  // namespace tricklet::ui
