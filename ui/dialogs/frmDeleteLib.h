// The dialog that sends a library to the recycle bin.
#pragma once

#include <string>
#include <vector>

#include <QDialog>

class QComboBox;
class QPushButton;

namespace tricklet {
struct Session;
}

namespace tricklet::ui {

/// Lets one of `names` be chosen and deletes it. It stays open when the engine refuses.
class frmDeleteLib : public QDialog {
  Q_OBJECT

 public:
  frmDeleteLib(Session& session, const std::vector<std::string>& names, QWidget* parent);

  /// The name of the library that is chosen, as it is shown; empty while none is.
  QString Chosen() const;

 private:
  void ShowChoice();
  void Delete();

  Session& session_;
  QComboBox* cmbLibs;
  QPushButton* cmdOK = nullptr;
};

}  // namespace tricklet::ui
