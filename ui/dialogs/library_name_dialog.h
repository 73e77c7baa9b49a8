// A dialog for the name of a library.
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace tricklet {
struct Session;
}

namespace tricklet::ui {

/// Stays open until the engine accepts the name as a new one, or Cancel. The name that was there at
/// the beginning may be kept. The dialog itself does nothing with the name.
class LibraryNameDialog : public QDialog {
  Q_OBJECT

 public:
  /// `prompt` is the accessible name of the text box, and stands in it while it is empty.
  LibraryNameDialog(Session& session, const QString& label, const QString& prompt,
                    const QString& name, QWidget* parent);

  /// The name that was accepted.
  std::string Name() const;

 private:
  void TakeName();

  Session& session_;
  const std::string before_;
  QLabel* lblCopy;
  QLineEdit* txtLibName;
  QPushButton* cmdOK = nullptr;
};

}  // namespace tricklet::ui
