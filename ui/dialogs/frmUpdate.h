// The dialog that looks for a newer version.
#pragma once

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QPushButton;

namespace tricklet::ui {

class Updates;

/// Asks as it opens, and tells what came of it. Accepted when the person wants to see the page of
/// the newer version.
class frmUpdate : public QDialog {
  Q_OBJECT

 public:
  frmUpdate(Updates& updates, QWidget* parent);

 private:
  void Show();

  Updates& updates_;
  QLabel* lblUpdate;
  QLabel* lblNotes;
  QDialogButtonBox* buttons_;
  QPushButton* cmdOpenPage;
};

}  // namespace tricklet::ui
