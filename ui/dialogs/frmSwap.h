// The dialog that exchanges hands or suits and rotates the deal.
#pragma once

#include <QDialog>

#include "generate/rotation.h"
#include "library/session.h"

class QButtonGroup;
class QCheckBox;
class QGridLayout;
class QGroupBox;

namespace tricklet::ui {

class EditControl;

/// Each button changes the current board at once; the dialog stays open until Done.
class frmSwap : public QDialog {
  Q_OBJECT

 public:
  frmSwap(Session& session, EditControl& edit, QWidget* parent);

 signals:
  void Changed();

 private:
  QGroupBox* MakeHands();
  QGroupBox* MakeSuits();
  QGroupBox* MakeRotation();
  QButtonGroup* AddSeats(QGridLayout* grid, const QString& name, const QString& caption,
                         Seat chosen);
  QButtonGroup* AddSuits(QGridLayout* grid, const QString& name, const QString& caption,
                         Suit chosen);
  template <class Procedure>
  void Change(const Procedure& procedure);

  Session& session_;
  EditControl& edit_;
  QButtonGroup* OptFrom = nullptr;
  QButtonGroup* OptTo = nullptr;
  QButtonGroup* OptFromSuit = nullptr;
  QButtonGroup* OptToSuit = nullptr;
  QCheckBox* chkAuction_ = nullptr;
};

}  // namespace tricklet::ui
