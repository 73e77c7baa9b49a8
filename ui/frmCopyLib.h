// The dialog that copies the current library under a new name.
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace tricklet {
struct Session;
}

namespace tricklet::ui {

/// Asks for a name. It stays open until the engine takes the name, or Cancel; the copy is made
/// after it.
class frmCopyLib : public QDialog {
  Q_OBJECT

 public:
  frmCopyLib(Session& session, QWidget* parent);

  /// The name that was accepted.
  std::string Name() const;

 private:
  void TakeName();

  Session& session_;
  QLabel* lblCopy;
  QLineEdit* txtLibName;
  QPushButton* cmdOK = nullptr;
};

}  // namespace tricklet::ui
