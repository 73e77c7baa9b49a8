// The left column's upper part while hands are edited.
#pragma once

#include "library/session.h"
#include "ui/style/section.h"

class QComboBox;
class QGridLayout;
class QLineEdit;
class QPushButton;
class QTimer;

namespace tricklet::ui {

class Commands;
class EditControl;

/// `fraEdit`: the ways of editing, what can be filled, cleared and undone, and, where hands are
/// typed, a line for each.
class EditPane : public Section {
  Q_OBJECT

 public:
  explicit EditPane(Commands& commands, QWidget* parent = nullptr);

  /// Visible only while the hands are edited. A line in which a hand is being typed keeps its text
  /// unless that hand has changed.
  void Show(const Session& session, const EditControl& edit);

  /// Takes over a hand that is being typed; false when it was refused, and the text is still there.
  bool FinishTyping();
  /// From now on, what is being typed is not taken over.
  void ForgetTyping();
  /// The line to begin with; nullptr where hands are not typed.
  QWidget* FirstLine() const;

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 private:
  void BuildMethod();
  QWidget* BuildLines();
  void BuildButtons();
  void ShowMethod(const Settings& settings);
  void ShowLines(const Board& board);
  bool FinishLine(Seat seat);
  void FinishLinesLeft();

  Commands& commands_;
  QComboBox* cmbEditMethod_;
  QLabel* hint_;
  QWidget* lines_;
  QTimer* lineLeft_;
  PerSeat<QLineEdit*> txtHand;
  PerSeat<QString> shown_;  // in `txtHand` before anything was typed there
  QPushButton* cmdRandom = nullptr;
  QPushButton* cmdUndoFill = nullptr;
  QPushButton* cmdFillFourth_ = nullptr;
  QPushButton* cmdClear = nullptr;
  QPushButton* cmdUndoClear = nullptr;
};

}  // namespace tricklet::ui
