// The left column's lower part: points, losers and lengths of the four hands.
#pragma once

#include "core/notation.h"
#include "library/session.h"
#include "ui/style/section.h"

namespace tricklet::ui {

/// Visible only when the statistics are switched on, the board holds cards and is not being played.
class StatisticsPane : public Section {
  Q_OBJECT

 public:
  explicit StatisticsPane(QWidget* parent = nullptr);

  void Show(const Session& session);

 private:
  PerSuit<QLabel*> symbols_;
  PerSeat<QLabel*> points_;
  PerSeat<QLabel*> losers_;
  PerSeat<PerSuit<QLabel*>> lengths_;
  QLabel* pairs_;
};

}  // namespace tricklet::ui
