// The program's own cards, found in the background.
#pragma once

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

#include <QObject>

#include "library/session.h"
#include "play/best_line.h"

namespace tricklet::ui {

class Worker;

/// Finds what the program plays in its turn. It plays nothing itself.
class ProgramPlayer : public QObject {
  Q_OBJECT

 public:
  explicit ProgramPlayer(Session& session, QObject* parent = nullptr);
  ~ProgramPlayer() override;

  /// Begins to find the cards for `turn`, or gives up what it was finding; to be called whenever
  /// the turn may be another one. Cards that were found for the same turn are given again, as
  /// whoever was to play them may have been busy.
  void Think(const std::optional<ProgramTurn>& turn);

 signals:
  /// The cards for the turn, never before `Think` has returned; none when the solver cannot tell.
  void Found(const tricklet::ProgramTurn& turn, const std::vector<tricklet::Card>& cards);

 private:
  void Post(const ProgramTurn& turn);
  void Give();

  Session& session_;
  std::optional<ProgramTurn> turn_;
  std::optional<std::vector<Card>> cards_;    // for `turn_`, once they are known
  bool giving_ = false;                       // `Found` waits for the event loop
  std::shared_ptr<std::atomic<int>> wanted_;  // the number of the last turn
  std::unique_ptr<Worker> worker_;            // from the first turn on
};

}  // namespace tricklet::ui
