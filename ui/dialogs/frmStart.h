// The start dialog.
#pragma once

#include <QDialog>

#include "library/session.h"

namespace tricklet::ui {

/// Shows the program's name and version, and waits for `cmdLaunch`. With "AutoLaunch" on it is to
/// be passed over.
class frmStart : public QDialog {
  Q_OBJECT

 public:
  explicit frmStart(Session& session, QWidget* parent = nullptr);
};

}  // namespace tricklet::ui
