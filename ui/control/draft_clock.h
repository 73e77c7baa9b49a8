// The clock by which a window keeps changes that are not saved.
#pragma once

#include <QObject>
#include <QString>

#include "library/draft.h"

namespace tricklet::ui {

/// Keeps the current board's changes every few seconds, and once more when it is destroyed.
class DraftClock : public QObject {
  Q_OBJECT

 public:
  explicit DraftClock(Session& session, QObject* parent = nullptr);

  /// Asks about what earlier windows have left. True when the session has changed.
  bool OfferDrafts() { return tricklet::OfferDrafts(session_, keeper_); }

  /// Why the changes cannot be kept; empty when they are, or there are none.
  QString Problem() const;

 signals:
  /// `Problem` has changed.
  void ProblemChanged();

 private:
  void Keep();

  Session& session_;
  DraftKeeper keeper_;
};

}  // namespace tricklet::ui
