// The generator's dialog.
#pragma once

#include <QDialog>

#include "generate/constraints.h"
#include "library/session.h"

class QButtonGroup;
class QCheckBox;
class QDialogButtonBox;
class QLayout;

namespace tricklet::ui {

class GenerateHand;
class NumberRange;

/// What the person chooses in the dialog. Kept while the program runs.
struct GenerateChoices {
  Constraints constraints;
  bool preview = false;  ///< every deal is shown before it is stored
};

/// Asks for the boards to generate and the constraints of one or two hands. It closes only with
/// constraints that agree, or by Cancel.
class frmGenerate : public QDialog {
  Q_OBJECT

 public:
  /// Begins with `choices`.
  frmGenerate(Session& session, const GenerateChoices& choices, QWidget* parent);

  /// The choices as they stand in the dialog.
  GenerateChoices Chosen() const;

 private:
  QLayout* BuildRun();
  QDialogButtonBox* BuildButtons();
  void Connect();
  void SetTabOrder(const QDialogButtonBox& buttons);
  void Fill(const GenerateChoices& choices);
  void Go();

  Session& session_;
  NumberRange* boards_ = nullptr;
  QButtonGroup* optnGen;
  QButtonGroup* optSpecify;
  QCheckBox* chkPreview;
  PerGenHand<GenerateHand*> hands_;
};

}  // namespace tricklet::ui
