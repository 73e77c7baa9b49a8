// The start dialog.
#pragma once

#include <QDialog>

#include "library/session.h"

namespace tricklet::ui {

/// Shows the program's name and version, and waits for `cmdLaunch`. It is not shown while
/// "AutoLaunch" is on.
class frmStart : public QDialog {
  Q_OBJECT

 public:
  explicit frmStart(Session& session, QWidget* parent = nullptr);
};

}  // namespace tricklet::ui
