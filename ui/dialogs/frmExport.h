// The export dialog.
#pragma once

#include <QDialog>

#include "formats/exchange/export.h"

class QButtonGroup;
class QComboBox;

namespace tricklet::ui {

/// Asks for the boards and the type to export. It closes only with a valid range or by Cancel.
class frmExport : public QDialog {
  Q_OBJECT

 public:
  frmExport(Session& session, QWidget* parent);

  /// Its `last` is 0 unless the dialog was accepted.
  const ExportRange& Range() const { return range_; }

 private:
  QWidget* MakeTypes();
  void Go();

  Session& session_;
  ExportRange range_;
  QComboBox* cmbFrom;
  QComboBox* cmbTo;
  QButtonGroup* optType = nullptr;
};

}  // namespace tricklet::ui
