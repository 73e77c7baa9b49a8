// The dialog before a library becomes a web page.
#pragma once

#include <QDialog>

#include "library/session.h"
#include "publish/web/publish_web.h"

class QButtonGroup;
class QCheckBox;
class QLineEdit;

namespace tricklet::ui {

/// Asks for boards, title, names, the report and the folder. It closes only with all of them or by
/// Cancel.
class frmPublish : public QDialog {
  Q_OBJECT

 public:
  /// Begins with `proposed`.
  frmPublish(Session& session, const PublishChoices& proposed, QWidget* parent);

  /// What was chosen, once accepted.
  const PublishChoices& Choices() const { return choices_; }

 private:
  QWidget* MakeNames();
  QWidget* MakeFolder();
  void ChooseFolder();
  void Go();

  Session& session_;
  PublishChoices choices_;
  QLineEdit* txtBoards;
  QLineEdit* txtTitle;
  QCheckBox* chkNotes = nullptr;
  QLineEdit* txtFolder = nullptr;
  QButtonGroup* optNames = nullptr;
  QCheckBox* chkReport = nullptr;
};

}  // namespace tricklet::ui
