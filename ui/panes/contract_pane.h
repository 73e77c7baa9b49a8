// The right column's middle part: the contract, its play and its result.
#pragma once

#include <QWidget>

#include "core/notation.h"
#include "library/session.h"
#include "play/card_play.h"
#include "play/replay.h"

class QLabel;
class QPushButton;

namespace tricklet::ui {

class Commands;

/// The contract; during play the tricks of both sides, undo and claim; and the result line.
class ContractPane : public QWidget {
  Q_OBJECT

 public:
  explicit ContractPane(Commands& commands, QWidget* parent = nullptr);

  /// Shows the board's contract and `play`. Nothing is shown while the auction is being entered:
  /// the contract is not known then.
  void Show(const Session& session, const CardPlay& play, bool entering);

  /// Shows the contract of a play record that is looked at, its tricks so far and its result.
  void ShowRecord(const Replay& record, const Settings& settings);

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 private:
  void ShowTricks(const CardPlay& play);
  void ShowPlay(const CardPlay& play);

  QLabel* lblContract;
  PerSide<QLabel*> lblTricks;
  QWidget* fraPlay_;
  QPushButton* cmdUndo;
  QPushButton* cmdClaim;
  QLabel* lblScore;
};

}  // namespace tricklet::ui
