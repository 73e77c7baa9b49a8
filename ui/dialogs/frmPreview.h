// The preview of a dealt board.
#pragma once

#include <QDialog>

#include "core/board.h"
#include "core/host.h"
#include "core/settings.h"

class QPushButton;

namespace tricklet::ui {

/// Shows a deal that is not stored yet and asks whether to take it.
class frmPreview : public QDialog {
  Q_OBJECT

 public:
  frmPreview(const Board& board, const Settings& settings, QWidget* parent);

  /// Yes, No or Cancel; Cancel too when the dialog is closed without an answer.
  Answer Ask();

 private:
  QWidget* MakeTable(const Board& board, Settings settings);
  QPushButton* Add(const char* name, const QString& text, const QString& tip, Answer answer);

  Answer answer_ = Answer::Cancel;
};

}  // namespace tricklet::ui
