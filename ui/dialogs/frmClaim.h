// The dialog that claims a number of tricks.
#pragma once

#include <memory>
#include <string>

#include <QDialog>

#include "library/session.h"
#include "play/card_play.h"

class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

namespace tricklet::ui {

class Worker;

/// Asks which side claims how many tricks in all; on demand it says what the claim is worth against
/// the best defence, which the solver finds beside the window's thread.
class frmClaim : public QDialog {
  Q_OBJECT

 public:
  /// Begins with all the tricks that are left for the side on play. Somebody is on play in `play`.
  frmClaim(Session& session, const CardPlay& play, QWidget* parent);
  ~frmClaim() override;

  Side ClaimingSide() const;
  int Tricks() const;

 private:
  void Build();
  void Connect();
  void ShowLimits();
  void ShowResult();
  void Check();
  void Tell(const std::string& text);

  Session& session_;
  const PlayState state_;
  const Board played_;
  QComboBox* cmbClaimSide;
  QSpinBox* spnClaim;
  QLabel* lblClaimResult;
  QLabel* lblClaimCheck;
  QPushButton* cmdCheckClaim;
  int asked_ = 0;  // the number of the last check, so that older ones are not shown
  std::unique_ptr<Worker> worker_;  // from the first check on
};

}  // namespace tricklet::ui
