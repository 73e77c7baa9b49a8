// The start dialog.
#pragma once

#include <chrono>

#include <QDialog>

#include "library/session.h"

class QLabel;
class QPushButton;

namespace tricklet::ui {

class Updates;

/// Shows the program's name and version, looks for a newer one and waits for `cmdLaunch`. It is not
/// shown while "AutoLaunch" is on.
class frmStart : public QDialog {
  Q_OBJECT

 public:
  /// The longest that the start waits for what `Updates` is told.
  static constexpr std::chrono::milliseconds kPatience{2000};

  frmStart(Session& session, Updates& updates, std::chrono::milliseconds patience = kPatience);

 private:
  void LookForUpdate(std::chrono::milliseconds patience);
  void Launch();
  void GoOn();

  Updates& updates_;
  QLabel* lblUpdate;
  QLabel* lblNotes;
  QPushButton* cmdLaunch;
  bool waiting_ = false;   // for the answer
  bool launched_ = false;  // `cmdLaunch` has been pressed
};

}  // namespace tricklet::ui
