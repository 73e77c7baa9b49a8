// A button of the auction dialog that makes a bid.
#pragma once

#include <QPushButton>

#include "core/call.h"

namespace tricklet::ui {

/// Shows the level and the suit's symbol in its colour; its accessible name is "One club".
class BidButton : public QPushButton {
  Q_OBJECT

 public:
  BidButton(Call bid, bool fourColours, QWidget* parent);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor SymbolColour() const;

  Call bid_;
  bool fourColours_;
  QString symbol_;  // or "NT"
};

}  // namespace tricklet::ui
