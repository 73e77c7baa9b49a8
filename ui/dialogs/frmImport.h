// The look at a hand-record file before it is imported.
#pragma once

#include <QDialog>

#include "formats/exchange/look_at.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace tricklet {
struct Session;
}

namespace tricklet::ui {

class ImportRowsModel;
class ImportRowsView;

/// Shows what an import would do, board by board, and lets the person choose how it is done. A
/// choice that the file leaves no room for is not offered.
class frmImport : public QDialog {
  Q_OBJECT

 public:
  /// Begins with the choices of `look`. Both are to outlive it.
  frmImport(const Session& session, const ImportLook& look, QWidget* parent);

  /// What is to be done, once the dialog was accepted.
  const ImportChoices& Choices() const { return choices_; }

 private:
  QWidget* MakeHead();
  void AddInto(QGridLayout* grid);
  void AddNumbers(QGridLayout* grid);
  void AddDealer(QGridLayout* grid);
  void AddSection(QGridLayout* grid);
  void AddMarks(QGridLayout* grid);
  QWidget* MakeButtons();
  void Connect();
  void SetTabOrder();
  void SetFirstSize();

  void Choose();
  void ChooseSection();
  void Want(const QList<std::size_t>& boards, bool wanted);
  void Show();
  void ShowButton();
  QString Obstacle() const;

  const Session& session_;
  const ImportLook& look_;
  ImportChoices choices_;
  ImportRowsModel* rows_;
  QLabel* lblSummary = nullptr;
  QComboBox* cmbInto = nullptr;
  QLineEdit* txtLibName = nullptr;
  QComboBox* cmbNumbers = nullptr;
  QSpinBox* spnFrom = nullptr;
  QComboBox* cmbDealer = nullptr;
  QComboBox* cmbSection = nullptr;
  QCheckBox* chkSkipBad = nullptr;
  QCheckBox* chkResults = nullptr;
  ImportRowsView* grdBoards = nullptr;
  QLabel* lblObstacle = nullptr;
  QPushButton* cmdImport = nullptr;
};

/// Lets a person decide by `frmImport`, which stands over `parent`. `session` is to outlive the
/// looker.
Looker LookDialog(QWidget* parent, const Session& session);

}  // namespace tricklet::ui
