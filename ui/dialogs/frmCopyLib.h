// The dialog that copies the current library under a new name.
#pragma once

#include "ui/dialogs/library_name_dialog.h"

namespace tricklet::ui {

class frmCopyLib : public LibraryNameDialog {
  Q_OBJECT

 public:
  frmCopyLib(Session& session, QWidget* parent);
};

}  // namespace tricklet::ui
