// The right column's middle part: the result of a play, undo and claim.
#pragma once

#include <QWidget>

#include "core/notation.h"
#include "library/session.h"
#include "play/card_play.h"
#include "play/replay.h"

class QLabel;
class QPushButton;

namespace tricklet::ui {

class Actions;

/// Undo and claim during play, and the result line. Contract and tricks lie on the table.
class ContractPane : public QWidget {
  Q_OBJECT

 public:
  explicit ContractPane(const Actions& actions, QWidget* parent = nullptr);

  /// Shows `play`, or the result of a board that was passed out.
  void Show(const Session& session, const CardPlay& play);

  /// Shows the result of a play record that is looked at.
  void ShowRecord(const Replay& record, const Settings& settings);

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 signals:
  /// The control that has the focus is about to go.
  void Left();

 private:
  QWidget* fraPlay_;
  QPushButton* cmdUndo;
  QPushButton* cmdClaim;
  QLabel* lblScore;
};

}  // namespace tricklet::ui
