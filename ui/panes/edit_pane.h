// The left column's upper part while hands are edited.
#pragma once

#include "library/session.h"
#include "ui/style/section.h"

class QComboBox;
class QLineEdit;
class QTimer;

namespace tricklet::ui {

class Actions;
class Commands;
class EditControl;

/// `fraEdit`: the ways of editing, what can be filled, cleared and undone, and, where hands are
/// typed, a line for each.
class EditPane : public Section {
  Q_OBJECT

 public:
  EditPane(Commands& commands, const Actions& actions, QWidget* parent = nullptr);

  /// Shows how the hands are edited, if they are. A line in which a hand is being typed keeps its
  /// text unless that hand has changed.
  void Show(const Session& session, const EditControl& edit);

  /// Takes over a hand that is being typed; false when it was refused, and the text is still there.
  bool FinishTyping();
  /// From now on, what is being typed is not taken over.
  void ForgetTyping();
  /// Puts the hands of the board back into the lines.
  void GiveUpTyping();
  /// The line to begin with; nullptr where hands are not typed.
  QWidget* FirstLine() const;

  /// The controls in the order of the tab key.
  QList<QWidget*> TabOrder() const;

 private:
  void BuildMethod();
  QWidget* BuildLines();
  void BuildButtons(const Actions& actions);
  void ShowMethod(const Settings& settings);
  void ShowLines(const Board& board);
  void EnterLine(Seat seat);
  bool FinishLine(Seat seat);
  void FinishLinesLeft();

  Commands& commands_;
  QComboBox* cmbEditMethod_;
  QLabel* hint_;
  QWidget* lines_;
  QTimer* lineLeft_;
  PerSeat<QLineEdit*> txtHand;
  PerSeat<QString> shown_;  // in `txtHand` before anything was typed there
  QList<QWidget*> buttons_;
};

}  // namespace tricklet::ui
