// The auction dialog.
#pragma once

#include <array>

#include <QDialog>

#include "library/session.h"
#include "play/auction_entry.h"
#include "ui/dialogs/call_keys.h"

class QGridLayout;
class QLabel;
class QPushButton;

namespace tricklet::ui {

class BidButton;

/// Enters the auction of the current board, by buttons or by typing calls. Once accepted, the board
/// has the auction; once rejected, after a question, the one that it had before.
class frmBidding : public QDialog {
  Q_OBJECT

 public:
  frmBidding(Session& session, QWidget* parent);

  const AuctionEntry& Entry() const { return entry_; }

  void reject() override;

 signals:
  /// The calls entered may have changed.
  void AuctionChanged();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QGridLayout* MakeBids(bool fourColours);
  QGridLayout* MakeCalls();
  QPushButton* Add(QGridLayout* grid, const char* name, const QString& text);
  QPushButton* Add(QGridLayout* grid, const char* name, const QString& text,
                   void (AuctionEntry::*procedure)());
  void Show();
  void ShowEnabled();
  template <class Procedure>
  void Change(const Procedure& procedure);

  void OK();
  void Type(char key);
  void TakeBack();

  Host& host_;
  AuctionEntry entry_;
  CallKeys keys_;
  QLabel* lblModifyBidding;
  QLabel* lblTyped_;
  std::array<BidButton*, Call::kBids> cmdBid{};
  QPushButton* cmdPass = nullptr;
  QPushButton* cmdDbl = nullptr;
  QPushButton* cmdRdb = nullptr;
  QPushButton* cmdAllPass = nullptr;
  QPushButton* cmdUndo = nullptr;
  QPushButton* cmdClear = nullptr;
  QPushButton* cmdOK = nullptr;
};

}  // namespace tricklet::ui
