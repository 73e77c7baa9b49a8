// The dialog that asks for the numbers of boards, and where they are to go.
#pragma once

#include <functional>
#include <string>

#include <QDialog>

#include "finding/board_numbers.h"
#include "library/session.h"

class QButtonGroup;
class QComboBox;
class QFormLayout;
class QLabel;
class QPushButton;

namespace tricklet::ui {

class NumberCombo;

/// Stays open until what was chosen has been done, or Cancel.
class frmNumberBoards : public QDialog {
  Q_OBJECT

 public:
  enum class For {
    Copying,     ///< to a library that is chosen or named
    Renumbering  ///< in the current library
  };

  /// For so many boards.
  frmNumberBoards(Session& session, For what, int boards, QWidget* parent);

  /// Does what was asked for; false, after a message, when it could not be done. `library` is empty
  /// when boards get new numbers.
  using Action = std::function<bool(const std::string& library, const NumberPlan& plan)>;
  void SetAction(Action action) { action_ = std::move(action); }

  /// The library that was chosen or named last.
  std::string Library() const;
  void SetLibrary(const std::string& name);

 private:
  void AddLibrary(QFormLayout* form);
  QWidget* MakeNumbering(For what);
  void ProposeFirst();
  void ShowState();
  NumberPlan Plan() const;
  void Go();

  Session& session_;
  Action action_;
  QComboBox* cmbLibrary = nullptr;
  QButtonGroup* optNumbering = nullptr;
  NumberCombo* cmbFirst = nullptr;
  QLabel* lblNumbering = nullptr;
  QPushButton* cmdOK = nullptr;
};

}  // namespace tricklet::ui
