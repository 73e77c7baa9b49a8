// What the window knows of newer versions of the program.
#pragma once

#include <memory>
#include <optional>

#include <QObject>
#include <QString>

#include "update/fetcher.h"
#include "update/update_outcome.h"

namespace tricklet::ui {

/// Asks the update address, one question at a time, and keeps what came of it. Nothing is ever
/// asked but by `Ask`.
class Updates : public QObject {
  Q_OBJECT

 public:
  /// `fetcher` is null in a program that is built without the update check.
  Updates(const Settings& settings, std::unique_ptr<Fetcher> fetcher);

  bool LeftOut() const { return fetcher_ == nullptr; }

  /// Why nothing can be asked; empty when it can.
  QString Obstacle() const;
  /// The program is to ask at its start, and can.
  bool WantedAtStart() const { return settings_.autoUpdate && Obstacle().isEmpty(); }
  /// What the start dialog says before anything has been asked.
  QString StartText() const;
  /// What that means to somebody who has never heard of an update check; empty when it is plain.
  QString StartNotes() const;

  /// Asks now; a question under way is given up. To be called only where there is no obstacle.
  void Ask();
  bool Asking() const { return asking_; }
  /// What came of the last question, in words; empty while none has been settled.
  QString OutcomeText() const { return outcomeText_; }

  /// The newer version that is known; null when there is none. It stays known while the site does
  /// not answer.
  const UpdateAnswer* Newer() const { return newer_ ? &*newer_ : nullptr; }
  /// The same, where it is what came of the last question.
  const UpdateAnswer* JustFound() const { return justFound_ ? Newer() : nullptr; }

 signals:
  /// A question has been settled.
  void Settled();

 private:
  void Settle(const UpdateOutcome& outcome);

  const Settings& settings_;
  bool asking_ = false;
  QString outcomeText_;
  std::optional<UpdateAnswer> newer_;
  bool justFound_ = false;
  std::unique_ptr<Fetcher> fetcher_;  // the first to go, as its answer would find the rest
};

}  // namespace tricklet::ui
