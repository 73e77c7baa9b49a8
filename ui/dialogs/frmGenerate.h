// The generator's dialog.
#pragma once

#include <memory>
#include <string>

#include <QDialog>

#include "conditions/script.h"
#include "generate/constraints.h"
#include "library/session.h"

class QButtonGroup;
class QCheckBox;
class QDialogButtonBox;
class QLayout;
class QPushButton;
class QTabWidget;

namespace tricklet::ui {

class ConditionPanel;
class GenerateHand;
class NumberRange;

/// What the person chooses in the dialog. Kept while the program runs.
struct GenerateChoices {
  Constraints constraints;
  bool preview = false;      ///< every deal is shown before it is stored
  bool byCondition = false;  ///< what deals are wanted is said by `script`, not by `constraints`
  std::string condition;     ///< as it was written, also where it does not count
  std::shared_ptr<const Script> script;  ///< with `byCondition`
};

/// Asks for the boards to generate and what deals are wanted: by a form, the constraints of one or
/// two hands, or by a condition in words. It closes only with constraints that agree or a
/// condition that can be read, or by Cancel.
class frmGenerate : public QDialog {
  Q_OBJECT

 public:
  /// Begins with `choices`.
  frmGenerate(Session& session, const GenerateChoices& choices, QWidget* parent);

  /// The choices as they stand in the dialog.
  GenerateChoices Chosen() const;

 private:
  QLayout* BuildBoards();
  QWidget* BuildForm(const GenerateChoices& choices);
  QDialogButtonBox* BuildButtons();
  void Connect();
  void SetTabOrder(const QDialogButtonBox& buttons);
  void Fill(const GenerateChoices& choices);
  void WriteAsText();
  bool Agrees();
  void Go();

  Session& session_;
  NumberRange* boards_ = nullptr;
  QButtonGroup* optnGen;
  QButtonGroup* optSpecify;
  QCheckBox* chkPreview;
  PerGenHand<GenerateHand*> hands_;
  QTabWidget* tabs_;
  ConditionPanel* condition_;
  QPushButton* cmdAsText = nullptr;
};

}  // namespace tricklet::ui
